// UDisks2's errors as Disk Arbitration's status codes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/DiskArbitration.h"

namespace brisel::platform::headless {

/// The code that says the same as a D-Bus error name; DAReturn::Error for a name not known here.
std::uint32_t statusOfError(std::string_view errorName);

/// The refusal with that status.
inline Dissenter dissenterFor(std::string_view errorName) {
    return {.status = statusOfError(errorName)};
}

/// The log line for a failed call: the disk's BSD name and the error's message.
inline constexpr const char* UDisksFailure = "UDisks2 on %@: %@";

}  // namespace brisel::platform::headless
