// The version of macOS.
// SPDX-License-Identifier: MIT
#import "platform/macos/SystemVersion.h"

#import <Foundation/Foundation.h>

namespace brisel::platform::macos {

bool SystemVersion::isMacOS12OrLater() const {
    // Not @available: no newer API is called, only another way to mount is chosen.
    static const bool answer = [] {
        const NSOperatingSystemVersion version{12, 0, 0};
        return static_cast<bool>(
            [[NSProcessInfo processInfo] isOperatingSystemAtLeastVersion:version]);
    }();
    return answer;
}

}  // namespace brisel::platform::macos
