// The system log, by NSLog.
// SPDX-License-Identifier: MIT
#import "platform/macos/SystemLog.h"

#include "platform/macos/Text.h"

namespace brisel::platform::macos {

void SystemLog::write(const std::string& text) {
    @autoreleasepool {
        NSLog(@"%@", nsString(text));
    }
}

}  // namespace brisel::platform::macos
