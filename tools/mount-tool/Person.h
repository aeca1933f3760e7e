// The person who asked for the mount.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

struct Person {
    uid_t uid = 0;
    gid_t gid = 0;
    std::string home;  ///< Absolute.
};

/// Who asked, by the value of PKEXEC_UID: decimal digits without leading zeros, of a user that
/// exists and has a home folder. A null pointer stands for an absent variable: root itself asked.
/// Asks the system's user database; for the main thread.
Result<Person> whoAsked(const char* pkexecUID);

}  // namespace brisel::mounttool
