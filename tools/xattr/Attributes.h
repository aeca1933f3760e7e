// The extended attributes of one file or folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "tools/xattr/Descriptor.h"

namespace brisel::xattr {

/// Removes every attribute of the namespace `user.` from what the descriptor stands for, which may
/// have been opened with O_PATH. One that cannot be removed does not keep the others. Returns why
/// the first such could not be, or nothing; that there are none, or that the file system knows of
/// none, is no failure.
[[nodiscard]] std::optional<std::string> removeUserAttributes(const Descriptor& file);

}  // namespace brisel::xattr
