// What a fuzz target insists on.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>

namespace brisel::tests {

/// Ends the run as a crash does, with the input kept, unless it held.
inline void must(bool held) {
    if (!held) std::abort();
}

}  // namespace brisel::tests
