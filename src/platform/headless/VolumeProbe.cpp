// Checks whether a mounted NTFS volume is writable or hibernated.
// SPDX-License-Identifier: MIT
#include "platform/headless/VolumeProbe.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "platform/Format.h"
#include "platform/headless/MountInfo.h"
#include "shared/Descriptor.h"

namespace brisel::platform::headless {

namespace {

bool takesAFile(const std::string& folder) {
    auto path = folder + "/.brisel-XXXXXX";
    const shared::Descriptor file(mkstemp(path.data()));
    // A full volume is still writable: files can be deleted.
    if (!file) return errno == ENOSPC || errno == EDQUOT;
    return unlink(path.c_str()) == 0;
}

}  // namespace

bool takesWriting(const std::string& mountPoint) {
    return currentMountState(mountPoint) == MountState::ReadWrite && takesAFile(mountPoint);
}

bool isHibernated(const std::string& mountPoint) {
    constexpr std::string_view SleepWord = "hibr";
    std::array<char, SleepWord.size()> start{};
    std::ifstream file(mountPoint + "/hiberfil.sys", std::ios::binary);
    file.read(start.data(), start.size());
    return file && lowercased(std::string(start.data(), start.size())) == SleepWord;
}

}  // namespace brisel::platform::headless
