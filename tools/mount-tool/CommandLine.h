// Parses the mount tool's command line: -o OPTIONS DEVICE MOUNTPOINT.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

struct MountRequest {
    std::string device;      ///< `/dev/` and one component of [A-Za-z0-9._-].
    std::string mountPoint;  ///< Absolute; not yet checked against the home folder.
};

/// Parses main's arguments. Refuses unknown, repeated and empty options, options without `rw`,
/// missing and extra arguments, and arguments of PATH_MAX bytes or more. Has no side effects.
Result<MountRequest> parseCommandLine(int argumentCount, const char* const* arguments);

/// Returns LABEL if `mountPoint` is HOME/.brisel/LABEL, else a refusal. LABEL is 1 to NAME_MAX
/// bytes without slashes and control characters, and not `.` or `..`.
Result<std::string> labelOf(std::string_view mountPoint, std::string_view home);

}  // namespace brisel::mounttool
