// The extended attributes of one file or folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "shared/Descriptor.h"

namespace brisel::xattr {

/// Removes all `user.` attributes of `file`, which may be opened with O_PATH. Continues after a
/// failure and returns the reason of the first; nullopt on success, also without attributes or
/// support for them.
[[nodiscard]] std::optional<std::string> removeUserAttributes(const shared::Descriptor& file);

}  // namespace brisel::xattr
