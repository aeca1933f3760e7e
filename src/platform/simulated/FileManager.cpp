// The file manager of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/FileManager.h"

#include <utility>

namespace brisel::platform::simulated {

namespace {

Error noSuchFile() {
    return {.localizedDescription = "No such file or directory",
            .localizedFailureReason = std::nullopt};
}

const char* nameOf(FileManager::Call call) {
    switch (call) {
        case FileManager::Call::Create:
            return "create";
        case FileManager::Call::List:
            return "list";
        case FileManager::Call::Delete:
            break;
    }
    return "delete";
}

}  // namespace

FileManager::FileManager(Transcript& transcript, Faults& faults, FileSystem& fileSystem,
                         const DiskArbitration& disks)
    : transcript_(transcript), faults_(faults), fileSystem_(fileSystem), disks_(disks) {}

bool FileManager::isWritableFileAtPath(const std::optional<std::string>& path) {
    return !faults_.strikes("isWritable") && path && disks_.isWritable(*path);
}

FolderListing FileManager::contentsOfDirectory(const FileURL& folder) {
    if (auto error = nextFailure(Call::List)) return {.entryCount = 0, .error = std::move(error)};
    if (!fileSystem_.hasFolder(folder.path())) return {.entryCount = 0, .error = noSuchFile()};
    return {.entryCount = fileSystem_.entryCount(folder.path()), .error = std::nullopt};
}

std::optional<Error> FileManager::createDirectory(const std::string& path) {
    transcript_.record("mkdir: %@", path);
    if (auto error = nextFailure(Call::Create)) return error;
    fileSystem_.makeFolder(path);
    return std::nullopt;
}

std::optional<Error> FileManager::removeItem(const std::string& path) {
    transcript_.record("delete: %@", path);
    if (auto error = nextFailure(Call::Delete)) return error;
    if (!fileSystem_.hasFolder(path)) return noSuchFile();
    fileSystem_.removeFolder(path);
    return std::nullopt;
}

void FileManager::fail(Call call, Error error) {
    failures_[call].push_back(std::move(error));
}

std::optional<Error> FileManager::nextFailure(Call call) {
    if (faults_.strikes(nameOf(call))) return Faults::error();
    auto& waiting = failures_[call];
    if (waiting.empty()) return std::nullopt;
    auto error = std::move(waiting.front());
    waiting.pop_front();
    return error;
}

}  // namespace brisel::platform::simulated
