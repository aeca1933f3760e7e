// The lines that `brisel-dialog` writes for Brisel to read.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::shared {

/// The window is on screen.
inline constexpr const char* ShownWord = "shown";
/// Followed by the index of the pressed button or the ID of the chosen item.
inline constexpr const char* PressedWord = "pressed ";
/// The window was closed unanswered.
inline constexpr const char* ClosedWord = "closed";

}  // namespace brisel::shared
