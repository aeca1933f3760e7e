// Keeping Objective-C exceptions inside the adapters.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

namespace brisel::platform::macos {

/// Runs `work`. The frameworks raise exceptions for what they take as mistakes of the program; one
/// that `work` raises is logged with `purpose`, such as "show an alert", and goes no further.
/// Whether none was raised.
template <typename Work>
bool guarded(const char* purpose, const Work& work) {
    @try {
        work();
        return true;
    } @catch (NSException* exception) {
        NSLog(@"The system refused to %s: %@", purpose, [exception reason]);
    }
    return false;
}

}  // namespace brisel::platform::macos
