// How a file system is mounted.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::macos {

/// Whether the file system at `path` is mounted read-only; no where that cannot be told.
bool isMountedReadOnly(const std::string& path);

}  // namespace brisel::platform::macos
