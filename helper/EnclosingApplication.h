// The application that a login item lies in.
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

namespace brisel::helper {

/// The bundle four levels above the login item's own, as in
/// `Brisel.app/Contents/Library/LoginItems/BriselHelper.app`; none when that is no application.
[[nodiscard]] std::optional<std::filesystem::path> enclosingApplication(
    const std::filesystem::path& loginItem);

}  // namespace brisel::helper
