// Starts a child process with its standard input and output on a socket.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/Authorization.h"

namespace brisel::platform::common {

/// Forks and runs `body` in the child. `body` must exit or exec, and may call only
/// async-signal-safe functions. The owner (F_GETOWN) of the returned stream's descriptor is the
/// child. Fails with errAuthorizationToolExecuteFailure.
[[nodiscard]] StartedTool startToolProcess(const std::function<void()>& body);

}  // namespace brisel::platform::common
