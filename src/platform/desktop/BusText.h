// Sanitizes untrusted text for the session bus.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::desktop {

/// Returns `text` as valid UTF-8, which D-Bus requires. Makes control characters visible, and drops
/// line separators and bidirectional controls to prevent label spoofing.
std::string busText(const std::string& text);

}  // namespace brisel::platform::desktop
