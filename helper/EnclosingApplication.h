// Finds the application that contains a login item.
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>

namespace brisel::helper {

/// The bundle four levels above the login item, as in
/// `Brisel.app/Contents/Library/LoginItems/BriselHelper.app`; absent if its extension is not
/// `.app`.
[[nodiscard]] std::optional<std::filesystem::path> enclosingApplication(
    const std::filesystem::path& loginItem);

}  // namespace brisel::helper
