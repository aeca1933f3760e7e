// Visits the files and folders of a tree.
// SPDX-License-Identifier: MIT
#include "tools/xattr/TreeWalk.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <string_view>
#include <system_error>

namespace brisel::xattr {

namespace {

constexpr int OpenFolder = O_PATH | O_DIRECTORY | O_NOFOLLOW;

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

using OpenDirectory = std::unique_ptr<DIR, CloseFolder>;

/// For readdir(3); null, with errno, on failure.
OpenDirectory openForReading(const Descriptor& folder) {
    Descriptor readable = openAt(folder.number(), ".", O_RDONLY | O_DIRECTORY);
    OpenDirectory directory(readable ? fdopendir(readable.number()) : nullptr);
    // fdopendir has taken the descriptor over.
    if (directory) readable.release();
    return directory;
}

std::optional<struct stat> statusOf(const Descriptor& file) {
    struct stat status {};
    if (fstat(file.number(), &status) != 0) return std::nullopt;
    return status;
}

bool isDotOrDotDot(std::string_view name) {
    return name == "." || name == "..";
}

bool mayBeFileOrFolder(const dirent& found) {
    return found.d_type == DT_REG || found.d_type == DT_DIR || found.d_type == DT_UNKNOWN;
}

bool isFolder(const dirent& found, const Entry& entry) {
    if (found.d_type != DT_UNKNOWN) return found.d_type == DT_DIR;
    const auto status = entry.status();
    return status && S_ISDIR(status->st_mode);
}

/// True if `error` of an open means that the folder was removed or replaced.
bool isGone(int error) {
    return error == ENOENT || error == ENOTDIR || error == ELOOP;
}

}  // namespace

Descriptor openAt(int folder, const std::string& name, int flags) {
    return Descriptor(openat(folder, name.c_str(), flags | O_CLOEXEC));
}

void TreeWalk::run(Descriptor start, const std::string& path) {
    path_ = path;
    const auto status = statusOf(start);
    if (!status) return complain(path, errno);
    device_ = status->st_dev;
    visit_(Entry(start), path);
    if (!S_ISDIR(status->st_mode)) return;
    const Descriptor before = openAt(AT_FDCWD, ".", OpenFolder);
    walk(std::move(start));
    if (before && fchdir(before.number()) != 0) complain(".", errno);
}

void TreeWalk::walk(Descriptor start) {
    enter(std::move(start));
    while (!levels_.empty()) {
        if (levels_.back().subfolders.empty()) {
            ascend();
        } else {
            descend();
        }
    }
}

void TreeWalk::enter(Descriptor folder) {
    const auto status = statusIfHere(folder);
    if (!status) return;
    Level level{.node = status->st_ino, .pathLength = path_.size(), .subfolders = {}};
    visitEntries(folder, level);
    if (level.subfolders.empty()) return;
    levels_.push_back(std::move(level));
    current_ = std::move(folder);
}

void TreeWalk::visitEntries(const Descriptor& folder, Level& level) {
    const auto directory = openForReading(folder);
    if (!directory || fchdir(folder.number()) != 0) return complain(path_, errno);
    errno = 0;
    while (const auto* found = readdir(directory.get())) {
        if (mayBeFileOrFolder(*found) && !isDotOrDotDot(found->d_name)) visitEntry(*found, level);
        errno = 0;
    }
    if (errno != 0) complain(path_, errno);
}

void TreeWalk::visitEntry(const dirent& found, Level& level) {
    const Entry entry(found.d_name, device_);
    visit_(entry, pathOf(found.d_name));
    if (isFolder(found, entry)) level.subfolders.emplace_back(found.d_name);
}

void TreeWalk::descend() {
    auto& level = levels_.back();
    const auto name = std::move(level.subfolders.back());
    level.subfolders.pop_back();
    path_.resize(level.pathLength);
    path_ = pathOf(name);
    Descriptor folder = openAt(current_.number(), name, OpenFolder);
    if (folder) {
        enter(std::move(folder));
    } else if (!isGone(errno)) {
        complain(path_, errno);
    }
}

void TreeWalk::ascend() {
    path_.resize(levels_.back().pathLength);
    levels_.pop_back();
    if (levels_.empty()) return;
    Descriptor above = openAt(current_.number(), "..", OpenFolder);
    const auto status = above ? statusIfHere(above) : std::nullopt;
    if (status && status->st_ino == levels_.back().node) {
        current_ = std::move(above);
        return;
    }
    // The folder was moved; its new parent is not part of the tree.
    complain_(path_, "it was moved during the walk; the rest is skipped");
    levels_.clear();
}

void TreeWalk::complain(const std::string& path, int error) {
    complain_(path, std::generic_category().message(error));
}

std::optional<struct stat> TreeWalk::statusIfHere(const Descriptor& file) const {
    const auto status = statusOf(file);
    return status && status->st_dev == device_ ? status : std::nullopt;
}

std::string TreeWalk::pathOf(const std::string& name) const {
    return path_.ends_with('/') ? path_ + name : path_ + '/' + name;
}

}  // namespace brisel::xattr
