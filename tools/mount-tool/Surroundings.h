// What whoever starts the tool hands down to it: descriptors, signals, limits, environment.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// Makes the process independent of how it was started, or says why it cannot: standard
/// descriptors are open, all others closed, signals blocked, limits lifted as far as possible, the
/// environment is empty, the working folder is `/` and new files are the owner's alone. For the
/// start of `main`, while there is one thread and nothing is open.
std::optional<Refusal> shakeOffSurroundings();

}  // namespace brisel::mounttool
