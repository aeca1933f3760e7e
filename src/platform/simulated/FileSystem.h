// The folders and files of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

namespace brisel::platform::simulated {

/// Paths are absolute; "." and ".." are resolved by the text alone, as there are no links.
class FileSystem {
  public:
    [[nodiscard]] bool hasFolder(const std::string& path) const;
    /// Makes the folder and those above it.
    void makeFolder(const std::string& path);
    /// Makes a file and the folders above it.
    void makeFile(const std::string& path);
    /// Removes the folder and all that is in it.
    void removeFolder(const std::string& path);
    /// Removes what is in the folder, if it is there.
    void emptyFolder(const std::string& path);
    [[nodiscard]] std::size_t entryCount(const std::string& folder) const;
    /// The folders at and below `path`, in alphabetical order.
    [[nodiscard]] std::vector<std::string> foldersFrom(const std::string& path) const;

  private:
    std::set<std::string> folders_;
    std::set<std::string> files_;
};

}  // namespace brisel::platform::simulated
