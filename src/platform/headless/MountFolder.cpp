// HOME/.brisel, the folder of the mount tool's mount points.
// SPDX-License-Identifier: MIT
#include "platform/headless/MountFolder.h"
#include "shared/MountFolders.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

namespace brisel::platform::headless {

namespace fs = std::filesystem;

namespace {

// Does not follow symbolic links; the mount tool refuses a linked folder too.
bool isFolder(const fs::path& path) {
    std::error_code code;
    return fs::symlink_status(path, code).type() == fs::file_type::directory;
}

}  // namespace

std::string mountFolderIn(const std::string& home) {
    return home + "/" + shared::MountFolders;
}

bool isBelow(std::string_view path, std::string_view folder) {
    if (!path.starts_with(folder)) return false;
    const auto rest = path.substr(folder.size());
    if (!rest.starts_with('/')) return false;
    const fs::path components(rest.substr(1));
    if (std::find(components.begin(), components.end(), "..") != components.end()) return false;
    return std::any_of(components.begin(), components.end(), [](const auto& name) {
        return !name.empty() && name != "." && name != "/";
    });
}

bool isMountPointIn(std::string_view folder, std::string_view path) {
    return isBelow(path, folder) && path.rfind('/') == folder.size();
}

void removeEmptyMountPoints(const std::string& folder) {
    if (!isFolder(folder)) return;
    std::error_code code;
    for (fs::directory_iterator entry(folder, code); !code && entry != end(entry);
         entry.increment(code)) {
        // rmdir fails on mount points and non-empty folders.
        if (isFolder(entry->path())) rmdir(entry->path().c_str());
    }
}

}  // namespace brisel::platform::headless
