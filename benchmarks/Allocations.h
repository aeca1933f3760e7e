// Counting what the benchmark program allocates.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace brisel::benchmarks {

/// How often memory was allocated with `new` so far, on any thread.
std::size_t allocations();

}  // namespace brisel::benchmarks
