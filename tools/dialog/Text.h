// Sanitizes untrusted text for display.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::dialog {

/// Returns valid UTF-8 whose only control characters are newlines. Invalid bytes, control
/// characters and bidirectional controls become U+FFFD; tabs, carriage returns and Unicode line
/// separators become spaces.
std::string sanitizedText(std::string_view bytes);

/// sanitizedText, with spaces for newlines.
std::string sanitizedLine(std::string_view bytes);

/// Cuts a text, valid UTF-8, to `mostLetters` characters; if cut, the last is an ellipsis.
std::string shortened(const std::string& text, std::size_t mostLetters);

}  // namespace brisel::dialog
