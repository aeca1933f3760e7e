// Texts of others, made fit to be shown.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::dialog {

/// The bytes as valid UTF-8 without control characters but line ends. What cannot be shown, and
/// what would turn the order of the letters around it, becomes U+FFFD; tabs become spaces.
std::string textOf(std::string_view bytes);

/// The same in one line: line ends become spaces.
std::string lineOf(std::string_view bytes);

/// The first letters of a text, valid UTF-8, with an ellipsis in place of what exceeds
/// `mostLetters`.
std::string shortened(const std::string& text, std::size_t mostLetters);

}  // namespace brisel::dialog
