// One program run to its end, in surroundings of ours.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brisel::mounttool {

struct Ended {
    int status = 0;  ///< Its exit status; -1 when a signal ended it.
    /// What it wrote to both streams, up to 64 KiB; anything but printable bytes and line ends
    /// replaced by question marks.
    std::string output;
};

/// Runs a program with these arguments, its environment a PATH and LC_ALL=C, its input empty, its
/// signals as if nobody had touched them, in a session of its own. Blocks until it ends, however
/// long what it leaves in the background runs on. None, with `errno`, where it cannot be started.
std::optional<Ended> run(const std::string& path, const std::vector<std::string>& arguments);

/// Text fit for a log: control characters other than line ends become question marks.
std::string withoutControlCharacters(std::string text);

}  // namespace brisel::mounttool
