// Reads the kernel's mount table, which tells whether a mount is read-write.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::headless {

enum class MountState { NotMounted, ReadOnly, ReadWrite };

/// State of the topmost mount at `mountPoint` in the text of a mountinfo file
/// (proc_pid_mountinfo(5)). ReadWrite if both the mount options and the super options contain rw.
/// Skips malformed lines.
MountState mountState(std::string_view mountInfo, const std::string& mountPoint);

/// State of `mountPoint` in /proc/self/mountinfo.
MountState currentMountState(const std::string& mountPoint);

}  // namespace brisel::platform::headless
