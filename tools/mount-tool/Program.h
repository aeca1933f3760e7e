// Runs a program to its end in a clean environment.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brisel::mounttool {

struct Ended {
    int status = 0;  ///< Exit status; -1 if a signal ended it.
    /// Standard output and error, up to 64 KiB, by withoutControlCharacters.
    std::string output;
};

/// Runs `path` in a new session, with only PATH and LC_ALL=C in its environment, /dev/null as input
/// and default signal handling. Blocks until it ends, but not for its background processes.
/// nullopt, with errno, if it cannot be started.
std::optional<Ended> run(const std::string& path, const std::vector<std::string>& arguments);

/// Replaces control characters other than newlines by question marks.
std::string withoutControlCharacters(std::string text);

}  // namespace brisel::mounttool
