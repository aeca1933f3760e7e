// Runs the NTFS driver ntfs-3g and its probe.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/Driver.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <vector>

#include "tools/mount-tool/Program.h"

namespace brisel::mounttool {

namespace {

struct Meaning {
    int status;
    const char* sentence;
};

constexpr std::array Meanings{
    Meaning{SyntaxError, "The NTFS driver received an invalid request."},
    Meaning{NotNTFS, "The NTFS driver finds no valid NTFS volume on the device."},
    Meaning{Inconsistent,
            "The volume is damaged, or the disk is failing: let Windows check it (chkdsk /f), "
            "then try again."},
    Meaning{
        Hibernated,
        "Windows is hibernated on this volume, or was shut down with fast startup: shut Windows "
        "down fully, then try again."},
    Meaning{NotCleanlyUnmounted,
            "The volume was not cleanly unmounted: attach it to Windows and eject it there, then "
            "try again."},
    Meaning{InUse, "The volume is in use by another program or already mounted."},
    Meaning{RAID, "The volume is part of a RAID that is not assembled."},
    Meaning{Unknown, "The NTFS driver failed for an unknown reason."},
    Meaning{NoPrivilege, "The NTFS driver lacks the rights to mount the volume."},
    Meaning{OutOfMemory, "There is not enough memory to mount the volume."},
    Meaning{FUSEError, "FUSE does not work; the NTFS driver needs it."},
};

constexpr std::array ProbePaths{"/usr/bin/ntfs-3g.probe", "/bin/ntfs-3g.probe"};
constexpr std::array DriverPaths{"/usr/bin/ntfs-3g", "/bin/ntfs-3g"};

// Missing, or disabled by its permissions.
bool isAbsent(int error) {
    return error == ENOENT || error == EACCES;
}

// Runs the first program of `paths` that exists, and prints its output. nullopt, with errno, if
// none exists or it cannot be started.
template <typename Paths>
std::optional<Ended> runFirst(const Paths& paths, const std::vector<std::string>& arguments) {
    for (const char* const path : paths) {
        auto ended = run(path, arguments);
        if (!ended && isAbsent(errno)) continue;
        if (!ended) return std::nullopt;
        std::fputs(ended->output.c_str(), stdout);
        if (!ended->output.empty() && !ended->output.ends_with('\n')) std::putchar('\n');
        return ended;
    }
    return std::nullopt;
}

std::string optionsFor(const Caller& caller) {
    return "rw,noatime,nosuid,nodev,norecover,windows_names,uid=" + std::to_string(caller.uid) +
           ",gid=" + std::to_string(caller.gid) + ",umask=077";
}

}  // namespace

std::optional<Refusal> probe(const std::string& device) {
    const auto ended = runFirst(ProbePaths, {"--readwrite", device});
    // Without a probe the driver checks the volume when it mounts it.
    if (!ended && isAbsent(errno)) return std::nullopt;
    if (!ended) return refuseByError("The probe ntfs-3g.probe cannot be started");
    if (ended->status == 0) return std::nullopt;
    return refusalFor(ended->status);
}

std::optional<Refusal> mountWithDriver(const std::string& device, const std::string& folder,
                                       const Caller& caller) {
    const auto ended = runFirst(DriverPaths, {"-o", optionsFor(caller), device, folder});
    if (!ended) return refuseByError("The NTFS driver ntfs-3g cannot be started");
    if (ended->status == 0) return std::nullopt;
    return refusalFor(ended->status);
}

Refusal refusalFor(int driverStatus) {
    for (const auto& meaning : Meanings) {
        if (meaning.status == driverStatus) return {meaning.status, meaning.sentence};
    }
    return refusalFor(Unknown);
}

}  // namespace brisel::mounttool
