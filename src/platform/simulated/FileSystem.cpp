// The folders and files of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/FileSystem.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

namespace brisel::platform::simulated {

namespace {

using Path = std::filesystem::path;

std::string normal(const std::string& path) {
    auto text = Path(path).lexically_normal().string();
    if (text.size() > 1 && text.back() == '/') text.pop_back();
    return text;
}

bool isBelow(std::string_view path, const std::string& folder) {
    const auto start = folder == "/" ? folder : folder + '/';
    return path.size() > start.size() && path.starts_with(start);
}

void eraseBelow(std::set<std::string>& paths, const std::string& folder) {
    std::erase_if(paths, [&](const std::string& path) { return isBelow(path, folder); });
}

std::size_t countDirectlyIn(const std::set<std::string>& paths, const std::string& folder) {
    return static_cast<std::size_t>(
        std::count_if(paths.begin(), paths.end(), [&](const std::string& path) {
            return isBelow(path, folder) && Path(path).parent_path() == folder;
        }));
}

}  // namespace

bool FileSystem::hasFolder(const std::string& path) const {
    return folders_.contains(normal(path));
}

void FileSystem::makeFolder(const std::string& path) {
    for (Path folder = normal(path); folder.has_relative_path(); folder = folder.parent_path()) {
        folders_.insert(folder.string());
    }
}

void FileSystem::makeFile(const std::string& path) {
    const auto file = normal(path);
    files_.insert(file);
    makeFolder(Path(file).parent_path().string());
}

void FileSystem::removeFolder(const std::string& path) {
    emptyFolder(path);
    folders_.erase(normal(path));
}

void FileSystem::emptyFolder(const std::string& path) {
    const auto folder = normal(path);
    eraseBelow(folders_, folder);
    eraseBelow(files_, folder);
}

std::size_t FileSystem::entryCount(const std::string& folder) const {
    const auto path = normal(folder);
    return countDirectlyIn(folders_, path) + countDirectlyIn(files_, path);
}

std::vector<std::string> FileSystem::foldersFrom(const std::string& path) const {
    const auto start = normal(path);
    std::vector<std::string> found;
    std::copy_if(
        folders_.begin(), folders_.end(), std::back_inserter(found),
        [&](const std::string& folder) { return folder == start || isBelow(folder, start); });
    return found;
}

}  // namespace brisel::platform::simulated
