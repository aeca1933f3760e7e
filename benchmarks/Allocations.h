// Counts the benchmark program's allocations.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace brisel::benchmarks {

/// Number of calls of `new` so far, on all threads.
std::size_t allocations();

}  // namespace brisel::benchmarks
