// A kernel that does not know move_mount, as a program sees it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brisel::tests {

/// The argument by which the test program becomes such a start.
inline constexpr std::string_view OldKernelMode = "--on-old-kernel";

/// Becomes the program with these arguments, which gets ENOSYS for move_mount; returns an exit
/// status only if it cannot.
int startOnOldKernel(char** arguments);

}  // namespace brisel::tests
