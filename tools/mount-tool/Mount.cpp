// Mounts a volume on a private folder, verifies it, and attaches it to the user's folder.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Mount.h"

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <utility>

#include "tools/mount-tool/Driver.h"
#include "tools/mount-tool/MountCalls.h"

namespace brisel::mounttool {

namespace {

Refusal refuseByMountCall(const std::string& sentence) {
    if (errno == ENOSYS)
        return refuse("This kernel is too old: the tool needs Linux 5.9 or later.");
    return refuseByError(sentence);
}

Refusal disbelieved(const std::string& sentence) {
    return {Unknown, sentence};
}

// Creates a new file; never touches an existing one.
bool canCreateFiles(int root) {
    const auto name = ".brisel-" + std::to_string(getpid());
    const Descriptor file(openat(root, name.c_str(),
                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                                 S_IRUSR | S_IWUSR));
    // A full volume is still writable: files can be deleted.
    if (!file) return errno == ENOSPC || errno == EDQUOT;
    return unlinkat(root, name.c_str(), 0) == 0;
}

bool isFUSE(int root) {
    constexpr decltype(statfs::f_type) FUSE = 0x65735546;
    struct statfs facts {};
    return fstatfs(root, &facts) == 0 && facts.f_type == FUSE;
}

bool isOf(int root, const NTFSDevice& device) {
    struct stat facts {};
    return fstat(root, &facts) == 0 && facts.st_dev == device.number();
}

}  // namespace

Mount::Mount(std::unique_ptr<StagingFolder> staging, Descriptor tree)
    : staging_(std::move(staging)), tree_(std::move(tree)) {}

Result<Mount> Mount::make(const NTFSDevice& device, const Caller& caller) {
    auto staging = StagingFolder::make();
    if (!staging) return refuseByError("No folder can be created in /run");
    if (const auto refusal = mountWithDriver(device.path(), staging->mountPoint(), caller))
        return *refusal;
    Descriptor tree(cloneMount(staging->mountPoint().c_str()));
    if (!tree) return refuseByMountCall("The mount cannot be cloned");
    return Mount(std::move(staging), std::move(tree));
}

std::optional<Refusal> Mount::complaintAs(const NTFSDevice& device) const {
    const int root = tree_.number();
    if (!isFUSE(root) || !isOf(root, device))
        return disbelieved("The NTFS driver reported success but has not mounted the volume.");
    struct statvfs facts {};
    if (fstatvfs(root, &facts) != 0) return refuseByError("The mounted volume cannot be examined");
    if ((facts.f_flag & ST_RDONLY) != 0)
        return disbelieved("The NTFS driver mounted the volume read-only.");
    if ((facts.f_flag & ST_NOSUID) == 0 || (facts.f_flag & ST_NODEV) == 0)
        return disbelieved("The volume was mounted without nosuid or nodev.");
    if (!canCreateFiles(root)) return disbelieved("No file can be created on the volume.");
    return std::nullopt;
}

std::optional<Refusal> Mount::putOn(const MountFolder& folder, const NTFSDevice& device) const {
    if (attachMount(tree_.number(), folder.descriptor()) != 0)
        return refuseByMountCall("The volume cannot be mounted on the mount point");
    if (folder.shows(device.number())) return std::nullopt;
    const auto mounted = "/proc/self/fd/" + std::to_string(tree_.number());
    if (umount2(mounted.c_str(), MNT_DETACH) != 0)
        return refuseByError("The mount point was moved, and the volume is mounted there");
    return refuse("The mount point was moved while the volume was being mounted.");
}

}  // namespace brisel::mounttool
