// Splits a command line into words and parses their values.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brisel::simulator {

using Words = std::vector<std::string>;

/// Splits a line at blanks, tabs and carriage returns. Double quotes, allowed anywhere in a word,
/// protect blanks; inside them `\"`, `\\` and `\n` are escapes. Absent if a quote is unterminated.
std::optional<Words> splitIntoWords(std::string_view line);

/// Splits `KEY=VALUE` at the first equals sign; absent without one.
std::optional<std::pair<std::string, std::string>> splitKeyAndValue(const std::string& word);

/// Parses an integer: decimal with an optional minus, or hexadecimal after 0x.
std::optional<std::int64_t> parseNumber(std::string_view word);

/// Parses a 32-bit status, written as a signed or an unsigned integer.
std::optional<std::uint32_t> parseStatus(std::string_view word);

}  // namespace brisel::simulator
