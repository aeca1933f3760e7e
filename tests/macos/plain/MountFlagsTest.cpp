// Whether a folder's file system is mounted read-only.
// SPDX-License-Identifier: MIT
#include "platform/macos/MountFlags.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

namespace brisel::tests::macos {
namespace {

using platform::macos::isMountedReadOnly;

// A Mac mounts `/` read-only; on Linux, containers mount some of the others so.
TEST(MountFlags, AgreeWithThePermissionToWrite) {
    for (const char* const folder : {"/", "/tmp", "/dev", "/sys", "/proc/sys"}) {
        const bool writable = access(folder, W_OK) == 0;
        if (!writable && errno != EROFS) continue;
        EXPECT_EQ(isMountedReadOnly(folder), !writable) << folder;
    }
}

TEST(MountFlags, OfAMissingFolderAreNotReadOnly) {
    EXPECT_FALSE(isMountedReadOnly("/missing/folder"));
}

}  // namespace
}  // namespace brisel::tests::macos
