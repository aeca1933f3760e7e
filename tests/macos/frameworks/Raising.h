// Exceptions that the frameworks raise for what they take as mistakes of the program.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

namespace brisel::tests::macos {

/// For the calls that can raise one: does so where that was ordered.
void raiseIfTold();

}  // namespace brisel::tests::macos
