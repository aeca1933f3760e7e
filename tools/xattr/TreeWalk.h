// Visits the files and folders of a tree.
// SPDX-License-Identifier: MIT
#pragma once

#include <dirent.h>
#include <sys/stat.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shared/Descriptor.h"
#include "tools/xattr/Entry.h"

namespace brisel::xattr {

using shared::Descriptor;

/// Opens `name` relative to `folder` (or AT_FDCWD) by openat(2), close-on-exec. On failure returns
/// no descriptor and sets errno.
[[nodiscard]] Descriptor openAt(int folder, const std::string& name, int flags);

/// Visits files and folders, but nothing else: that has no user attributes. Enters folders on one
/// file system. Opens each relative to its parent with O_NOFOLLOW, so that a link put in its place
/// cannot redirect the walk; does not open files, since that takes time. Keeps few descriptors
/// open, however deep the tree is. Changes the current folder, so one walk a process at a time.
class TreeWalk {
  public:
    /// `entry` may be gone, or something else than a file or folder; `path` is for messages.
    using Visit = std::function<void(const Entry& entry, const std::string& path)>;
    /// Called for an entry that cannot be opened or read; the walk continues.
    using Complain = std::function<void(const std::string& path, const std::string& reason)>;

    TreeWalk(Visit visit, Complain complain)
        : visit_(std::move(visit)), complain_(std::move(complain)) {}

    /// Visits `start`, opened with O_PATH, and everything below it. `path` is its name in messages.
    /// Returns to the current folder.
    void run(Descriptor start, const std::string& path);

  private:
    /// A folder from the start to the current one.
    struct Level {
        ino_t node = 0;
        std::size_t pathLength = 0;
        /// Names of the subfolders still to enter.
        std::vector<std::string> subfolders;
    };

    void walk(Descriptor start);
    /// Visits the entries of `folder`, whose path is path_. Makes it the current folder if it has
    /// subfolders.
    void enter(Descriptor folder);
    void visitEntries(const Descriptor& folder, Level& level);
    void visitEntry(const dirent& found, Level& level);
    void descend();
    void ascend();
    void complain(const std::string& path, int error);

    /// Status of `file`; nullopt on error, or if it is on another file system than the start.
    [[nodiscard]] std::optional<struct stat> statusIfHere(const Descriptor& file) const;
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    Visit visit_;
    Complain complain_;
    dev_t device_ = 0;
    std::vector<Level> levels_;
    /// The folder of the last level.
    Descriptor current_;
    /// Path of the folder being visited.
    std::string path_;
};

}  // namespace brisel::xattr
