// What `brisel-dialog` tells the program that started it.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace brisel::dialog {

/// What was chosen: a button's number from 0, or an item's ID. Nothing if the window was closed.
using Answer = std::optional<std::string>;

/// The line for a window that is on the screen.
std::string shownLine();
/// The line for a window's end.
std::string answerLine(const Answer& answer);

/// Writes the line to standard output, at once and as a whole. If there is nobody to read it, the
/// process ends.
void tell(const std::string& line);

}  // namespace brisel::dialog
