// Wraps open_tree(2) and move_mount(2).
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/MountCalls.h"

#include <fcntl.h>
#include <linux/mount.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace brisel::mounttool {

// By number, because older C libraries lack wrappers.
int cloneMount(const char* path) {
    constexpr unsigned Flags = OPEN_TREE_CLONE | OPEN_TREE_CLOEXEC | AT_SYMLINK_NOFOLLOW;
    return static_cast<int>(syscall(SYS_open_tree, AT_FDCWD, path, Flags));
}

int attachMount(int mount, int folder) {
    constexpr unsigned Flags = MOVE_MOUNT_F_EMPTY_PATH | MOVE_MOUNT_T_EMPTY_PATH;
    return static_cast<int>(syscall(SYS_move_mount, mount, "", folder, "", Flags));
}

}  // namespace brisel::mounttool
