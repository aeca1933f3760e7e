// Catches Objective-C exceptions in the adapters.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

namespace brisel::platform::macos {

/// Runs `work`; true if it raised no exception. Logs an exception with `purpose`, such as "show an
/// alert". The frameworks raise exceptions for programming errors.
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
