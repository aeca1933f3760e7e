// Lines that `brisel-dialog` writes to its parent process.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace brisel::dialog {

/// Index of the pressed button or ID of the chosen item; nullopt if the window was closed.
using Answer = std::optional<std::string>;

/// Written once the window is on screen.
std::string shownLine();
/// Written when the window ends.
std::string answerLine(const Answer& answer);

/// Writes the whole line to standard output, unbuffered. Exits the process if it cannot be written.
void tell(const std::string& line);

}  // namespace brisel::dialog
