// The stand-in Service Management.
// SPDX-License-Identifier: MIT
#import <ServiceManagement/ServiceManagement.h>

#import <Foundation/Foundation.h>

#include <string>

#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::orders;
using brisel::tests::macos::world;

namespace {

// The helper of the last service; the program asks for one at a time.
std::string helper;

BOOL answered(const std::string& request, NSError** error) {
    world().transcript.write("app-service: " + request + ' ' + helper);
    if (orders().appServiceAnswer.value_or(false)) return YES;
    NSDictionary* const reason = [NSDictionary dictionaryWithObject:@"Operation not permitted"
                                                             forKey:NSLocalizedDescriptionKey];
    *error = [NSError errorWithDomain:@"SMAppServiceErrorDomain" code:1 userInfo:reason];
    return NO;
}

}  // namespace

@implementation SMAppService

+ (instancetype)loginItemServiceWithIdentifier:(NSString*)identifier {
    helper = [identifier UTF8String];
    return [[[SMAppService alloc] init] autorelease];
}

- (BOOL)registerAndReturnError:(NSError**)error {
    return answered("register", error);
}

- (BOOL)unregisterAndReturnError:(NSError**)error {
    return answered("unregister", error);
}

@end

Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled) {
    const char* const name = [(__bridge NSString*)identifier UTF8String];
    return static_cast<Boolean>(world().loginItems.setEnabled(name, enabled != 0));
}
