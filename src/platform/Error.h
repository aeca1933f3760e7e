// What a service says of a call that failed.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace brisel::platform {

struct Error {
    /// A sentence for people, in the platform's own words; never parsed.
    std::string localizedDescription;
    /// Why, where the platform knows it.
    std::optional<std::string> localizedFailureReason;
};

}  // namespace brisel::platform
