// Reads the mount flags of a file system.
// SPDX-License-Identifier: MIT
#include "platform/macos/MountFlags.h"

#include <sys/statvfs.h>

namespace brisel::platform::macos {

bool isMountedReadOnly(const std::string& path) {
    struct statvfs fileSystem {};
    return statvfs(path.c_str(), &fileSystem) == 0 && (fileSystem.f_flag & ST_RDONLY) != 0;
}

}  // namespace brisel::platform::macos
