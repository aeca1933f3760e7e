// Reads the mount flags of a file system.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::macos {

/// True if the file system at `path` is mounted read-only; false on error.
bool isMountedReadOnly(const std::string& path);

}  // namespace brisel::platform::macos
