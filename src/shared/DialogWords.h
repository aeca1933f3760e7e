// The lines that `brisel-dialog` writes for Brisel to read.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brisel::shared {

/// The window is on screen.
inline constexpr std::string_view ShownWord = "shown";
/// Followed by the index of the pressed button or the ID of the chosen item.
inline constexpr std::string_view PressedWord = "pressed ";
/// The window was closed unanswered.
inline constexpr std::string_view ClosedWord = "closed";

}  // namespace brisel::shared
