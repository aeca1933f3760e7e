// The user who requested the mount.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Caller.h"

#include <pwd.h>

#include <charconv>
#include <optional>
#include <string_view>

namespace brisel::mounttool {

namespace {

std::optional<uid_t> parseUID(std::string_view text) {
    constexpr auto NoUser = static_cast<uid_t>(-1);
    uid_t uid = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, uid);
    if (error != std::errc() || stop != end || uid == NoUser) return std::nullopt;
    // Rejects leading zeros; from_chars rejects signs and blanks.
    if (std::to_string(uid) != text) return std::nullopt;
    return uid;
}

// Some user databases end a home folder with a slash.
std::string withoutLastSlash(std::string folder) {
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    return folder;
}

}  // namespace

Result<Caller> callerOf(const char* pkexecUID) {
    const auto uid = parseUID(pkexecUID != nullptr ? pkexecUID : "0");
    if (!uid) return refuse("PKEXEC_UID is not a user ID.");
    const passwd* const entry = getpwuid(*uid);
    if (entry == nullptr) return refuse("The requesting user does not exist.");
    auto home = withoutLastSlash(entry->pw_dir);
    if (!home.starts_with('/')) return refuse("The requesting user has no home folder.");
    return Caller{.uid = entry->pw_uid, .gid = entry->pw_gid, .home = std::move(home)};
}

}  // namespace brisel::mounttool
