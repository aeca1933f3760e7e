// The folders and files of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace brisel::platform::simulated {

/// Paths are absolute. Resolves "." and ".." lexically: there are no symbolic links.
class FileSystem {
  public:
    [[nodiscard]] bool hasFolder(const std::string& path) const;
    /// Creates the folder and its parents.
    void makeFolder(const std::string& path);
    /// Creates a file and its parent folders.
    void makeFile(const std::string& path);
    /// Removes the folder and its contents.
    void removeFolder(const std::string& path);
    /// Removes the folder's contents; does nothing if the folder does not exist.
    void emptyFolder(const std::string& path);
    [[nodiscard]] std::size_t entryCount(const std::string& folder) const;
    /// `path` and the folders below it that exist, in alphabetical order.
    [[nodiscard]] std::vector<std::string> foldersFrom(const std::string& path) const;

  private:
    std::set<std::string> folders_;
    std::set<std::string> files_;
};

}  // namespace brisel::platform::simulated
