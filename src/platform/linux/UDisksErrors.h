// UDisks2's errors as Disk Arbitration's status codes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

namespace brisel::platform::linux {

/// The code that says the same as a D-Bus error name; DAReturn::Error for a name not known here.
std::uint32_t statusOfError(std::string_view errorName);

}  // namespace brisel::platform::linux
