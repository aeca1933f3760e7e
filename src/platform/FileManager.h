// The file system, as far as the program makes, looks into and removes folders.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Error.h"
#include "platform/FileURL.h"

namespace brisel::platform {

struct FolderListing {
    /// Hidden entries count, "." and ".." don't. Means nothing beside an error.
    std::size_t entryCount = 0;
    std::optional<Error> error;
};

/// Main thread only. Paths are absolute and of any bytes.
class FileManager {
  public:
    virtual ~FileManager() = default;

    /// The user's home directory, without a slash at the end.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;
    /// Where the platform itself mounts volumes for the user: /Volumes on a Mac.
    [[nodiscard]] virtual std::string volumesDirectory() const = 0;
    /// The process's; empty where it cannot be told.
    [[nodiscard]] virtual std::string currentDirectoryPath() const = 0;
    /// Whether the user may write at this path; no for none, and on a read-only volume.
    [[nodiscard]] virtual bool isWritableFileAtPath(const std::optional<std::string>& path) = 0;
    /// How many entries the folder itself has.
    [[nodiscard]] virtual FolderListing contentsOfDirectory(const FileURL& folder) = 0;
    /// Makes the folder and those above it; one that is there already is no error.
    [[nodiscard]] virtual std::optional<Error> createDirectory(const std::string& path) = 0;
    /// Removes a folder. The path ends in a volume's label, which is anybody's text: a platform
    /// with real disks must refuse to remove a folder that is not empty.
    [[nodiscard]] virtual std::optional<Error> removeItem(const std::string& path) = 0;
};

}  // namespace brisel::platform
