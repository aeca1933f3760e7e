// Sets and queries extended attributes.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/xattr.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>

namespace brisel::tests {

/// Returns 0 or an errno.
inline int setAttribute(const std::string& path, const std::string& name) {
    return lsetxattr(path.c_str(), name.c_str(), "value", 5, 0) == 0 ? 0 : errno;
}

inline bool hasAttribute(const std::string& path, const std::string& name) {
    return lgetxattr(path.c_str(), name.c_str(), nullptr, 0) >= 0;
}

/// Creates a file with its path as content and the attribute user.tag.
inline std::string makeTaggedFile(const std::string& path) {
    std::ofstream(path) << path;
    setAttribute(path, "user.tag");
    return path;
}

/// Creates a folder with the attribute user.tag.
inline std::string makeTaggedFolder(const std::string& path) {
    std::filesystem::create_directory(path);
    setAttribute(path, "user.tag");
    return path;
}

inline bool isTagged(const std::string& path) {
    return hasAttribute(path, "user.tag");
}

}  // namespace brisel::tests
