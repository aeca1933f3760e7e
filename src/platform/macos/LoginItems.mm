// Login items, by Service Management.
// SPDX-License-Identifier: MIT
#import "platform/macos/LoginItems.h"

#import <ServiceManagement/ServiceManagement.h>

#include "platform/macos/Text.h"

namespace brisel::platform::macos {

bool LoginItems::setEnabled(const std::string& identifier, bool enabled) {
    const auto name = (__bridge CFStringRef)nsString(identifier);
    return SMLoginItemSetEnabled(name, static_cast<Boolean>(enabled)) != 0;
}

}  // namespace brisel::platform::macos
