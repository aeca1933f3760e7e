// The extended attributes of one file or folder.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Attributes.h"

#include <sys/xattr.h>

#include <cerrno>
#include <system_error>

namespace brisel::xattr {

namespace {

/// Null-terminated names in a row. `error` is an errno, or 0.
struct NameList {
    std::string names;
    int error = 0;
};

/// fgetxattr and its like fail on O_PATH descriptors. This path leads to the open file even after a
/// rename.
std::string pathOf(const shared::Descriptor& file) {
    return "/proc/self/fd/" + std::to_string(file.number());
}

NameList listAttributes(const std::string& path) {
    while (true) {
        const auto size = listxattr(path.c_str(), nullptr, 0);
        if (size < 0) return {.names = "", .error = errno};
        std::string names(static_cast<std::size_t>(size), '\0');
        const auto used = listxattr(path.c_str(), names.data(), names.size());
        if (used >= 0) {
            names.resize(static_cast<std::size_t>(used));
            return {.names = names};
        }
        // The list grew after it was measured.
        if (errno != ERANGE) return {.names = "", .error = errno};
    }
}

std::string reasonFor(int error) {
    if (error == E2BIG) return "it has more attributes than the system can list";
    return std::generic_category().message(error);
}

}  // namespace

std::optional<std::string> removeUserAttributes(const shared::Descriptor& file) {
    const auto path = pathOf(file);
    const auto list = listAttributes(path);
    if (list.error == ENOTSUP) return std::nullopt;
    if (list.error != 0) return reasonFor(list.error);
    std::optional<std::string> firstReason;
    for (std::size_t start = 0; start < list.names.size();) {
        const std::string name = list.names.c_str() + start;
        start += name.size() + 1;
        if (!name.starts_with("user.") || removexattr(path.c_str(), name.c_str()) == 0) continue;
        // Another process may have removed it.
        if (errno != ENODATA && !firstReason) firstReason = reasonFor(errno);
    }
    return firstReason;
}

}  // namespace brisel::xattr
