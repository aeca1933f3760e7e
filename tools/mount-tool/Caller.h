// The user who requested the mount.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

struct Caller {
    uid_t uid = 0;
    gid_t gid = 0;
    std::string home;  ///< Absolute.
};

/// Looks up the user of PKEXEC_UID, decimal digits without leading zeros. Null (unset) is root.
/// Refuses unknown users and users without a home folder. Not thread-safe: uses getpwuid.
Result<Caller> callerOf(const char* pkexecUID);

}  // namespace brisel::mounttool
