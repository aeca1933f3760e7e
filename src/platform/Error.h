// The error of a failed service call.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace brisel::platform {

struct Error {
    /// The platform's message for the user; never parsed.
    std::string localizedDescription;
    /// The cause, if the platform knows it.
    std::optional<std::string> localizedFailureReason;
};

}  // namespace brisel::platform
