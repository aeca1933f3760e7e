// The file system of a Linux machine.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileManager.h"

namespace brisel::platform::linux {

/// Removes empty folders only: a mount point that holds anything is somebody's data, whatever the
/// volume's label made its path look like.
class FileManager final : public platform::FileManager {
  public:
    [[nodiscard]] std::string homeDirectory() const override;
    /// UDisks2's folder for the user, which is one of two by how it was built.
    [[nodiscard]] std::string volumesDirectory() const override;
    [[nodiscard]] std::string currentDirectoryPath() const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::optional<std::string>& path) override;
    [[nodiscard]] FolderListing contentsOfDirectory(const FileURL& folder) override;
    [[nodiscard]] std::optional<Error> createDirectory(const std::string& path) override;
    [[nodiscard]] std::optional<Error> removeItem(const std::string& path) override;
};

}  // namespace brisel::platform::linux
