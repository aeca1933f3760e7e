// A file or folder of a tree, reached without opening it.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <optional>
#include <span>
#include <string>

#include "shared/Descriptor.h"

namespace brisel::xattr {

/// Found by its name in the current folder: neither a move of that folder nor a link in the entry's
/// place leads elsewhere.
class Entry {
  public:
    /// The start of a tree. `file` may be opened with O_PATH, and must outlive this object.
    explicit Entry(const shared::Descriptor& file);
    /// The entry `name` of the current folder, in a tree on the file system `device`.
    Entry(std::string name, dev_t device);

    /// nullopt, with errno, on failure.
    [[nodiscard]] std::optional<struct stat> status() const;
    /// True for a regular file or a folder on the tree's file system.
    [[nodiscard]] bool isOfTree() const;

    /// Wrap listxattr(2) and removexattr(2).
    [[nodiscard]] ssize_t listAttributes(std::span<char> names) const;
    [[nodiscard]] int removeAttribute(const std::string& attribute) const;

  private:
    enum class LastComponent { Followed, NotFollowed };

    std::string path_;
    LastComponent lastComponent_;
    dev_t device_ = 0;
};

}  // namespace brisel::xattr
