// Visits the files and folders of a tree.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tools/xattr/Descriptor.h"

namespace brisel::xattr {

/// Visits the files and folders of a tree that are on one file system, and nothing but files and
/// folders: nothing else has user attributes. It goes from folder to folder by descriptors that
/// follow no links, so that nobody can lead it elsewhere by exchanging a folder for a link; and it
/// holds a handful of them, however deep the tree is.
class TreeWalk {
  public:
    /// Called with a descriptor opened with O_PATH, and the path to show.
    using Visit = std::function<void(const Descriptor& file, const std::string& path)>;
    /// Called for what cannot be visited, or read. The walk goes on with the rest.
    using Complain = std::function<void(const std::string& path, const std::string& reason)>;

    TreeWalk(Visit visit, Complain complain)
        : visit_(std::move(visit)), complain_(std::move(complain)) {}

    /// Visits `start`, opened with O_PATH, and all below it. `path` names it in paths to show.
    void run(Descriptor start, const std::string& path);

  private:
    /// A folder on the way from the start to where we are.
    struct Level {
        ino_t node = 0;
        std::size_t pathLength = 0;
        /// The names of those that are still to be gone into.
        std::vector<std::string> subfolders;
    };

    /// Visits what is in the folder, which path_ names, and makes it the current one if there are
    /// folders in it.
    void enter(Descriptor folder);
    void visitEntries(const Descriptor& folder, Level& level);
    void visitEntry(const Descriptor& folder, const std::string& name, Level& level);
    void descend();
    void ascend();
    void complain(const std::string& path, int error);

    /// Its status, if that can be had and it is on the file system of the start.
    [[nodiscard]] std::optional<struct stat> statusIfHere(const Descriptor& file) const;
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    Visit visit_;
    Complain complain_;
    dev_t device_ = 0;
    std::vector<Level> levels_;
    /// The folder of the last level.
    Descriptor current_;
    /// The path of the folder at hand.
    std::string path_;
};

/// Whether it is a file or a folder.
bool canHoldUserAttributes(const Descriptor& file);

}  // namespace brisel::xattr
