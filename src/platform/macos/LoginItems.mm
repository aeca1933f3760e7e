// Login items, by Service Management.
// SPDX-License-Identifier: MIT
#import "platform/macos/LoginItems.h"

#import <ServiceManagement/ServiceManagement.h>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

/// The methods of SMAppService used here. The class is looked up by name, and SDKs before macOS 13
/// do not declare it.
@protocol BriselAppService <NSObject>
+ (id<BriselAppService>)loginItemServiceWithIdentifier:(NSString*)identifier;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end

namespace brisel::platform::macos {

namespace {

bool setEnabledByService(NSString* identifier, bool enabled) {
    const Class<BriselAppService> serviceClass = NSClassFromString(@"SMAppService");
    const id<BriselAppService> service = [serviceClass loginItemServiceWithIdentifier:identifier];
    if (service == nil) return false;
    NSError* error = nil;
    const BOOL done = enabled ? [service registerAndReturnError:&error]
                              : [service unregisterAndReturnError:&error];
    if (done) return true;
    NSLog(@"The system refused to %s the login item: %@", enabled ? "register" : "unregister",
          [error localizedDescription]);
    return false;
}

}  // namespace

bool LoginItems::setEnabled(const std::string& identifier, bool enabled) {
    NSString* const name = nsString(identifier);
    if (SMLoginItemSetEnabled((__bridge CFStringRef)name, static_cast<Boolean>(enabled)) != 0) {
        return true;
    }
    bool done = false;
    guarded("change the login item", [&] { done = setEnabledByService(name, enabled); });
    return done;
}

}  // namespace brisel::platform::macos
