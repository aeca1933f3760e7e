// The Linux file system.
// SPDX-License-Identifier: MIT
#include "platform/headless/FileManager.h"

#include <glib.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/headless/MountFolder.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

std::optional<Error> errorFrom(const std::error_code& code) {
    if (!code) return std::nullopt;
    return Error{.localizedDescription = code.message(), .localizedFailureReason = std::nullopt};
}

}  // namespace

FileManager::FileManager() : FileManager(FileURL(g_get_home_dir()).path()) {}

FileManager::FileManager(std::string home) : home_(std::move(home)) {}

std::string FileManager::volumesDirectory() const {
    std::error_code code;
    const auto runFolder = std::string("/run/media/") + g_get_user_name();
    return fs::exists(runFolder, code) ? runFolder : std::string("/media/") + g_get_user_name();
}

std::string FileManager::currentDirectoryPath() const {
    std::error_code code;
    return fs::current_path(code).string();
}

bool FileManager::isWritableFileAtPath(const std::optional<std::string>& path) {
    return path && access(path->c_str(), W_OK) == 0;
}

FolderListing FileManager::contentsOfDirectory(const FileURL& folder) {
    FolderListing listing;
    std::error_code code;
    for (fs::directory_iterator entry(folder.path(), code); !code && entry != end(entry);
         entry.increment(code)) {
        ++listing.entryCount;
    }
    listing.error = errorFrom(code);
    return listing;
}

std::optional<Error> FileManager::createDirectory(const std::string& path) {
    if (!isMountPointIn(mountFolderIn(home_), path)) {
        return Error{.localizedDescription = "The label is not a valid folder name",
                     .localizedFailureReason = std::nullopt};
    }
    std::error_code code;
    fs::create_directories(path, code);
    return errorFrom(code);
}

std::optional<Error> FileManager::removeItem(const std::string& path) {
    if (rmdir(path.c_str()) == 0) return std::nullopt;
    return errorFrom(std::error_code(errno, std::generic_category()));
}

}  // namespace brisel::platform::headless
