// Outside text on its way to the desktop's bus.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::desktop {

/// The text as valid UTF-8, which the bus insists on, its control characters made visible and those
/// that break the line or turn the direction of writing taken out: a label must not pass for
/// another, nor for two.
std::string busText(const std::string& text);

}  // namespace brisel::platform::desktop
