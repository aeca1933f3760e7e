// The stand-in Service Management.
// SPDX-License-Identifier: MIT
#import <ServiceManagement/ServiceManagement.h>

#import <Foundation/Foundation.h>

#include "tests/macos/frameworks/World.h"

Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled) {
    const char* const name = [(__bridge NSString*)identifier UTF8String];
    return static_cast<Boolean>(
        brisel::tests::macos::world().loginItems.setEnabled(name, enabled != 0));
}
