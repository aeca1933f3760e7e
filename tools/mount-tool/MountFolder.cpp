// The mount point, an empty folder in the user's HOME/.brisel.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/MountFolder.h"
#include "shared/MountFolders.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>
#include <optional>
#include <string_view>

namespace brisel::mounttool {

namespace {

using shared::MountFolders;
constexpr int Folder = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

Result<Descriptor> owned(Descriptor folder, const Caller& caller, const std::string& name) {
    if (!folder) return refuseByError(name + " cannot be opened as a folder");
    struct stat facts {};
    if (fstat(folder.number(), &facts) != 0) return refuseByError(name + " cannot be examined");
    if (facts.st_uid != caller.uid) return refuse(name + " belongs to another user.");
    return folder;
}

std::optional<struct statx> factsOf(int folder) {
    struct statx facts {};
    if (statx(folder, "", AT_EMPTY_PATH, STATX_BASIC_STATS | STATX_MNT_ID, &facts) != 0)
        return std::nullopt;
    return facts;
}

// True if both are on the same mount. Kernels before 5.8 report no mount ID; there compares only
// the file systems. nullopt, with errno, on failure.
std::optional<bool> isPlainFolderOf(int parent, int folder) {
    const auto outer = factsOf(parent);
    if (!outer) return std::nullopt;
    const auto inner = factsOf(folder);
    if (!inner) return std::nullopt;
    const bool sameMount =
        (inner->stx_mask & STATX_MNT_ID) == 0 || inner->stx_mnt_id == outer->stx_mnt_id;
    return sameMount && inner->stx_dev_major == outer->stx_dev_major &&
           inner->stx_dev_minor == outer->stx_dev_minor;
}

// nullopt, with errno, on failure.
std::optional<bool> isEmpty(int folder) {
    // A second descriptor, because fdopendir takes it over.
    Descriptor list(openat(folder, ".", Folder));
    if (!list) return std::nullopt;
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(fdopendir(list.number()), &closedir);
    if (!entries) return std::nullopt;
    // closedir closes it.
    list.release();
    errno = 0;
    while (const dirent* const entry = readdir(entries.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") return false;
    }
    if (errno != 0) return std::nullopt;
    return true;
}

}  // namespace

Result<MountFolder> MountFolder::open(const Caller& caller, const std::string& label) {
    auto home = owned(Descriptor(::open(caller.home.c_str(), Folder)), caller, "The home folder");
    if (!home) return home.refusal();
    auto parent = owned(Descriptor(openat(home->number(), MountFolders, Folder | O_NOFOLLOW)),
                        caller, "The folder .brisel");
    if (!parent) return parent.refusal();
    auto folder = owned(Descriptor(openat(parent->number(), label.c_str(), Folder | O_NOFOLLOW)),
                        caller, "The mount point");
    if (!folder) return folder.refusal();
    const auto plain = isPlainFolderOf(parent->number(), folder->number());
    if (!plain) return refuseByError("The mount point cannot be examined");
    if (!*plain) return refuse("A file system is already mounted on the mount point.");
    const auto empty = isEmpty(folder->number());
    if (!empty) return refuseByError("The mount point cannot be listed");
    if (!*empty) return refuse("The mount point is not empty.");
    return MountFolder(std::move(*home), std::move(*folder), label);
}

bool MountFolder::shows(dev_t fileSystem) const {
    constexpr int Look = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const Descriptor parent(openat(home_.number(), MountFolders, Look));
    const Descriptor folder(openat(parent.number(), label_.c_str(), Look));
    struct stat facts {};
    return parent && folder && fstat(folder.number(), &facts) == 0 && facts.st_dev == fileSystem;
}

}  // namespace brisel::mounttool
