// A private folder in /run, where the driver mounts the volume first.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/StagingFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "shared/MountFolders.h"

namespace brisel::mounttool {

namespace {

using shared::Descriptor;

constexpr const char* Parent = "/run/";
const auto Template = std::string(shared::StagingPrefix) + "XXXXXX";
constexpr const char* MountPoint = "volume";

Descriptor openFolder(const std::string& path) {
    return Descriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

void removeFolder(const std::string& path) {
    const auto mountPoint = path + "/" + MountPoint;
    // The driver of a killed run may mount meanwhile.
    while (rmdir(mountPoint.c_str()) != 0 && errno == EBUSY &&
           umount2(mountPoint.c_str(), MNT_DETACH | UMOUNT_NOFOLLOW) == 0) {
    }
    rmdir(path.c_str());
}

bool isRoots(const Descriptor& folder) {
    struct stat facts {};
    return fstat(folder.number(), &facts) == 0 && facts.st_uid == 0 &&
           (facts.st_mode & ~static_cast<mode_t>(S_IFMT)) == S_IRWXU;
}

bool isOurs(const std::string& path) {
    return path.starts_with(shared::StagingPrefix) && path.size() == Template.size();
}

void removeIfUnused(const std::string& path) {
    const auto folder = openFolder(path);
    if (!folder || !isRoots(folder)) return;
    if (flock(folder.number(), LOCK_EX | LOCK_NB) == 0) removeFolder(path);
}

}  // namespace

std::unique_ptr<StagingFolder> StagingFolder::make() {
    // A sweep of another run may remove the folder before it is locked; then mkdirat fails.
    constexpr int Attempts = 3;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        auto path = Template;
        if (mkdtemp(path.data()) == nullptr) return nullptr;
        auto lock = openFolder(path);
        if (lock && flock(lock.number(), LOCK_EX) == 0 &&
            mkdirat(lock.number(), MountPoint, S_IRWXU) == 0)
            return std::unique_ptr<StagingFolder>(new StagingFolder(path, std::move(lock)));
        const int error = errno;
        rmdir(path.c_str());
        errno = error;
    }
    return nullptr;
}

void StagingFolder::sweep() {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(Parent), &closedir);
    if (!entries) return;
    while (const dirent* const entry = readdir(entries.get())) {
        const auto path = std::string(Parent) + entry->d_name;
        if (isOurs(path)) removeIfUnused(path);
    }
}

StagingFolder::StagingFolder(std::string path, Descriptor lock)
    : path_(std::move(path)), mountPoint_(path_ + "/" + MountPoint), lock_(std::move(lock)) {}

StagingFolder::~StagingFolder() {
    removeFolder(path_);
}

}  // namespace brisel::mounttool
