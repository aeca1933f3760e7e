// The kernel's table of mounts: the one place that says whether a mount is read-write.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::headless {

enum class MountState { NotMounted, ReadOnly, ReadWrite };

/// The state of the topmost mount at `mountPoint`, by the text of a mountinfo file
/// (proc_pid_mountinfo(5)). Read-write means that neither the mount nor its file system is ro.
/// Lines that make no sense are passed over.
MountState mountState(std::string_view mountInfo, const std::string& mountPoint);

/// The same by this process's own table.
MountState currentMountState(const std::string& mountPoint);

}  // namespace brisel::platform::headless
