// The one command line that the tool understands: -o OPTIONS DEVICE MOUNTPOINT.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "tools/mount-tool/Result.h"

namespace brisel::mounttool {

struct Request {
    std::string device;      ///< `/dev/` and one component of [A-Za-z0-9._-].
    std::string mountPoint;  ///< Absolute; still to be held against the home folder.
};

/// Reads the arguments of `main`. Everything that is not known and needed is refused: options
/// doubled, empty or without `rw`, arguments missing, extra, or of PATH_MAX bytes and more. Touches
/// nothing but its arguments.
Result<Request> parseCommandLine(int argumentCount, const char* const* arguments);

/// The last component of a mount point that is exactly HOME/.brisel/LABEL, or a refusal. A label is
/// 1 to NAME_MAX bytes without a slash or control character, and neither `.` nor `..`.
Result<std::string> labelOf(std::string_view mountPoint, std::string_view home);

}  // namespace brisel::mounttool
