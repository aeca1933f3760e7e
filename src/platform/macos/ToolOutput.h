// The output of a tool that nobody reads before the tool has ended.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

namespace brisel::platform::macos {

/// Takes over the stream on a tool's output, which holds about eight kilobytes: a tool that writes
/// more would wait for its reader, and the reader, which waits for the tool's end first, for the
/// tool. Returns a stream that gives the same output, to the same end, and that the tool never
/// waits for. Where there is no thread to be had, returns `toolOutput` itself.
std::FILE* neverFull(std::FILE* toolOutput);

}  // namespace brisel::platform::macos
