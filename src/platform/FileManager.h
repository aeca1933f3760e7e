// The file manager: lists, creates and removes folders.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "platform/Error.h"
#include "platform/FileURL.h"

namespace brisel::platform {

struct FolderListing {
    /// Includes hidden entries, but not "." and "..". Unspecified if `error` is set.
    std::size_t entryCount = 0;
    std::optional<Error> error;
};

/// Main thread only. Paths are absolute and may contain any bytes.
class FileManager {
  public:
    virtual ~FileManager() = default;

    /// Without a trailing slash.
    [[nodiscard]] virtual std::string homeDirectory() const = 0;
    /// Where the platform mounts volumes; /Volumes on macOS.
    [[nodiscard]] virtual std::string volumesDirectory() const = 0;
    /// The process's working directory; empty if unknown.
    [[nodiscard]] virtual std::string currentDirectoryPath() const = 0;
    /// Whether the user may write at `path`. False if `path` is absent or on a read-only volume.
    [[nodiscard]] virtual bool isWritableFileAtPath(const std::optional<std::string>& path) = 0;
    [[nodiscard]] virtual FolderListing contentsOfDirectory(const FileURL& folder) = 0;
    /// Creates the folder and its parents. Succeeds if the folder exists.
    [[nodiscard]] virtual std::optional<Error> createDirectory(const std::string& path) = 0;
    /// Removes a folder. `path` ends in a volume's label, which is untrusted: on real disks, must
    /// refuse a folder that is not empty.
    [[nodiscard]] virtual std::optional<Error> removeItem(const std::string& path) = 0;
};

}  // namespace brisel::platform
