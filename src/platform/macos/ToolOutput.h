// Buffers a tool's output, so that the tool never blocks on writing it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>

namespace brisel::platform::macos {

/// Takes over `toolOutput` and returns a stream with its content, copied by a thread. Without it a
/// tool that writes more than the stream's buffer of about 8 KB would deadlock: the caller reads
/// only after the tool has ended. The stream has the owner (F_GETOWN) of `toolOutput`. Returns
/// `toolOutput` itself if there is no socket or thread.
std::FILE* neverFull(std::FILE* toolOutput);

}  // namespace brisel::platform::macos
