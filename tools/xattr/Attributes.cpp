// The extended attributes of one file or folder.
// SPDX-License-Identifier: MIT
#include "tools/xattr/Attributes.h"

#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace brisel::xattr {

namespace {

/// Null-terminated names in a row. `error` is an errno, or 0.
struct NameList {
    std::string names;
    int error = 0;
};

// Most files have no attributes or few: then one call is enough.
NameList listAttributes(const Entry& entry) {
    constexpr std::size_t UsualSize = 256;
    std::string names(UsualSize, '\0');
    while (true) {
        const auto used = entry.listAttributes(names);
        if (used >= 0) {
            names.resize(static_cast<std::size_t>(used));
            return {.names = std::move(names)};
        }
        // The list may grow after it is measured.
        const auto size = errno == ERANGE ? entry.listAttributes({}) : -1;
        if (size < 0) return {.names = "", .error = errno};
        names.resize(static_cast<std::size_t>(size));
    }
}

std::vector<std::string> userAttributesIn(const std::string& names) {
    std::vector<std::string> found;
    for (std::size_t start = 0; start < names.size();) {
        std::string name = names.c_str() + start;
        start += name.size() + 1;
        if (name.starts_with("user.")) found.push_back(std::move(name));
    }
    return found;
}

std::string reasonFor(int error) {
    if (error == E2BIG) return "it has more attributes than the system can list";
    return std::generic_category().message(error);
}

}  // namespace

std::optional<std::string> removeUserAttributes(const Entry& entry) {
    const auto list = listAttributes(entry);
    if (list.error == ENOTSUP || list.error == ENOENT) return std::nullopt;
    if (list.error != 0) return reasonFor(list.error);
    const auto attributes = userAttributesIn(list.names);
    if (attributes.empty() || !entry.isOfTree()) return std::nullopt;
    std::optional<std::string> firstReason;
    for (const auto& attribute : attributes) {
        if (entry.removeAttribute(attribute) == 0) continue;
        // Another process may have removed it.
        if (errno != ENODATA && !firstReason) firstReason = reasonFor(errno);
    }
    return firstReason;
}

}  // namespace brisel::xattr
