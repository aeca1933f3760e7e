// The extended attributes of one file or folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "tools/xattr/Entry.h"

namespace brisel::xattr {

/// Removes all `user.` attributes of `entry`. Continues after a failure and returns the reason of
/// the first; nullopt on success. Success, too, are no attributes, no support for them, and an
/// entry that is gone or not of its tree.
[[nodiscard]] std::optional<std::string> removeUserAttributes(const Entry& entry);

}  // namespace brisel::xattr
