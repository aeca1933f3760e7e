// Simulates a kernel without move_mount.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brisel::tests {

/// As first argument, makes the test program call startOnOldKernel() with the rest.
inline constexpr std::string_view OldKernelMode = "--on-old-kernel";

/// Executes `arguments` under a filter that fails move_mount with ENOSYS; returns an exit status on
/// failure.
int startOnOldKernel(char** arguments);

}  // namespace brisel::tests
