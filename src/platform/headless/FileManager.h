// The file system of a Linux machine.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/FileManager.h"

namespace brisel::platform::headless {

/// Creates mount points only and removes empty folders only, whatever the volume's label makes of
/// their paths.
class FileManager final : public platform::FileManager {
  public:
    FileManager();
    /// With another home directory than the user's own.
    explicit FileManager(std::string home);

    [[nodiscard]] std::string homeDirectory() const override { return home_; }
    /// UDisks2's folder for the user, which is one of two by how it was built.
    [[nodiscard]] std::string volumesDirectory() const override;
    [[nodiscard]] std::string currentDirectoryPath() const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::optional<std::string>& path) override;
    [[nodiscard]] FolderListing contentsOfDirectory(const FileURL& folder) override;
    /// Refuses a path that is not HOME/.brisel and one name more.
    [[nodiscard]] std::optional<Error> createDirectory(const std::string& path) override;
    [[nodiscard]] std::optional<Error> removeItem(const std::string& path) override;

  private:
    std::string home_;
};

}  // namespace brisel::platform::headless
