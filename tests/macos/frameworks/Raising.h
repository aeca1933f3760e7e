// Exceptions that the frameworks raise for misuse.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

namespace brisel::tests::macos {

/// Raises an exception if orders().nextCallRaises is set; each stand-in that can raise one calls
/// it.
void raiseIfTold();

}  // namespace brisel::tests::macos
