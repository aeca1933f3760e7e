// The file system, by NSFileManager.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FileManager.h"

namespace brisel::platform::macos {

class FileManager final : public platform::FileManager {
  public:
    [[nodiscard]] std::string homeDirectory() const override;
    [[nodiscard]] std::string volumesDirectory() const override { return "/Volumes"; }
    [[nodiscard]] std::string currentDirectoryPath() const override;
    [[nodiscard]] bool isWritableFileAtPath(const std::optional<std::string>& path) override;
    [[nodiscard]] FolderListing contentsOfDirectory(const FileURL& folder) override;
    [[nodiscard]] std::optional<Error> createDirectory(const std::string& path) override;
    [[nodiscard]] std::optional<Error> removeItem(const std::string& path) override;
};

}  // namespace brisel::platform::macos
