// Exceptions that the frameworks raise for misuse.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/Raising.h"

#include <utility>

#include "tests/macos/frameworks/World.h"

namespace brisel::tests::macos {

void raiseIfTold() {
    if (!std::exchange(orders().nextCallRaises, false)) return;
    [NSException raise:NSInternalInconsistencyException format:@"raised as told"];
}

}  // namespace brisel::tests::macos
