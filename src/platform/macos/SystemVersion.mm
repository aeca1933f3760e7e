// The version of macOS.
// SPDX-License-Identifier: MIT
#import "platform/macos/SystemVersion.h"

#import <Foundation/Foundation.h>

namespace brisel::platform::macos {

bool SystemVersion::isMacOS12OrLater() const {
    // Not an availability test of the compiler: nothing newer is called, only another way is taken.
    static const bool answer = [] {
        const NSOperatingSystemVersion version{12, 0, 0};
        return static_cast<bool>(
            [[NSProcessInfo processInfo] isOperatingSystemAtLeastVersion:version]);
    }();
    return answer;
}

}  // namespace brisel::platform::macos
