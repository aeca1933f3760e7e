// Sanitizes the inherited process state: descriptors, signals, limits, environment.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

/// Opens the standard descriptors, closes all others, blocks signals, lifts resource limits, clears
/// the environment, changes to `/` and sets umask 077. Returns a refusal on failure. Call first in
/// main, while single-threaded.
std::optional<Refusal> resetInheritedState();

}  // namespace brisel::mounttool
