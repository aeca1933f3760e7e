// A child process with its standard output on a socket, handed out as a privileged start is.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/Authorization.h"

namespace brisel::platform::common {

/// Forks and runs `body` in the child, with the socket as its standard input and output. `body`
/// must end the process or replace it, and may call only what is safe after a fork. The parent's
/// descriptor is owned (F_GETOWN) by the child.
[[nodiscard]] StartedTool startToolProcess(const std::function<void()>& body);

}  // namespace brisel::platform::common
