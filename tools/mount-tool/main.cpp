// Mounts an NTFS volume read-write on a folder in ~/.brisel, as root for a user.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <optional>

#include "tools/mount-tool/Caller.h"
#include "tools/mount-tool/CommandLine.h"
#include "tools/mount-tool/Driver.h"
#include "tools/mount-tool/InheritedState.h"
#include "tools/mount-tool/Mount.h"
#include "tools/mount-tool/MountFolder.h"
#include "tools/mount-tool/NTFSDevice.h"
#include "tools/mount-tool/StagingFolder.h"

namespace brisel::mounttool {

namespace {

// The checks of the request come first; nothing is mounted before they pass.
std::optional<Refusal> mount(const MountRequest& request, const char* pkexecUID) {
    auto caller = callerOf(pkexecUID);
    if (!caller) return caller.refusal();
    auto label = labelOf(request.mountPoint, caller->home);
    if (!label) return label.refusal();
    auto folder = MountFolder::open(*caller, *label);
    if (!folder) return folder.refusal();
    auto device = NTFSDevice::open(request.device);
    if (!device) return device.refusal();
    if (auto refusal = probe(device->path())) return refusal;
    auto mounted = Mount::make(*device, *caller);
    if (!mounted) return mounted.refusal();
    if (auto refusal = mounted->complaintAs(*device)) return refusal;
    return mounted->putOn(*folder, *device);
}

std::optional<Refusal> run(int argumentCount, const char* const* arguments) {
    std::optional<std::string> pkexecUID;
    if (const char* const value = std::getenv("PKEXEC_UID")) pkexecUID = value;
    if (auto refusal = resetInheritedState()) return refusal;
    if (getuid() != 0 || geteuid() != 0) return refuse("This tool must run as root.");
    auto request = parseCommandLine(argumentCount, arguments);
    if (!request) return request.refusal();
    StagingFolder::sweep();
    return mount(*request, pkexecUID ? pkexecUID->c_str() : nullptr);
}

}  // namespace

}  // namespace brisel::mounttool

int main(int argumentCount, char** arguments) {
    const auto refusal = brisel::mounttool::run(argumentCount, arguments);
    if (!refusal) return brisel::mounttool::Mounted;
    std::puts(refusal->sentence.c_str());
    return refusal->status;
}
