// Finds the application that contains a login item.
// SPDX-License-Identifier: MIT
#include "helper/EnclosingApplication.h"

namespace brisel::helper {

namespace {

// A trailing slash adds an empty last component, which is not a level.
std::filesystem::path withoutSlash(const std::filesystem::path& path) {
    return path.has_filename() ? path : path.parent_path();
}

}  // namespace

std::optional<std::filesystem::path> enclosingApplication(const std::filesystem::path& loginItem) {
    constexpr int Levels = 4;
    auto path = withoutSlash(loginItem.lexically_normal());
    for (int level = 0; level < Levels; ++level)
        path = path.parent_path();
    if (path.extension() != ".app") return std::nullopt;
    return path;
}

}  // namespace brisel::helper
