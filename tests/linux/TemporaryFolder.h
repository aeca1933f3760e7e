// A temporary folder, removed with its owner.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace brisel::tests {

class TemporaryFolder {
  public:
    explicit TemporaryFolder(
        const std::filesystem::path& within = std::filesystem::temp_directory_path()) {
        std::string name = within / "brisel-XXXXXX";
        path_ = mkdtemp(name.data());
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }

    [[nodiscard]] const std::string& path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace brisel::tests
