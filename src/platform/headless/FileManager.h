// The Linux file system.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/FileManager.h"

namespace brisel::platform::headless {

/// Creates only mount points and removes only empty folders: the paths contain a volume's label,
/// which is untrusted.
class FileManager final : public platform::FileManager {
  public:
    FileManager();
    /// Uses `home` instead of the user's home directory.
    explicit FileManager(std::string home);

    [[nodiscard]] std::string homeDirectory() const override { return home_; }
    /// UDisks2's mount folder for the user: /run/media/USER if it exists, else /media/USER. A build
    /// option of UDisks2 decides.
    [[nodiscard]] std::string volumesDirectory() const override;
    [[nodiscard]] std::string currentDirectoryPath() const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::optional<std::string>& path) override;
    [[nodiscard]] FolderListing contentsOfDirectory(const FileURL& folder) override;
    /// Creates HOME/.brisel/NAME and its parents; fails for any other path.
    [[nodiscard]] std::optional<Error> createDirectory(const std::string& path) override;
    [[nodiscard]] std::optional<Error> removeItem(const std::string& path) override;

  private:
    std::string home_;
};

}  // namespace brisel::platform::headless
