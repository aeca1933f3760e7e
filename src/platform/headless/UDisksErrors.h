// Translates UDisks2's errors to Disk Arbitration's status codes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/DiskArbitration.h"

namespace brisel::platform::headless {

/// Status for a D-Bus error name; DAReturn::Error if the name is unknown.
std::uint32_t statusOfError(std::string_view errorName);

inline Dissenter dissenterFor(std::string_view errorName) {
    return {.status = statusOfError(errorName)};
}

/// Log format for a failed call: BSD name, error message.
inline constexpr const char* UDisksFailure = "UDisks2 on %@: %@";

}  // namespace brisel::platform::headless
