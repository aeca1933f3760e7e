// Setting and asking for extended attributes in tests.
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

/// Makes a file that holds its own path and has the attribute user.tag.
inline std::string makeTaggedFile(const std::string& path) {
    std::ofstream(path) << path;
    setAttribute(path, "user.tag");
    return path;
}

/// The same for a folder.
inline std::string makeTaggedFolder(const std::string& path) {
    std::filesystem::create_directory(path);
    setAttribute(path, "user.tag");
    return path;
}

inline bool isTagged(const std::string& path) {
    return hasAttribute(path, "user.tag");
}

}  // namespace brisel::tests
