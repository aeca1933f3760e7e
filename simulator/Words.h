// The words of one command line.
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

/// Splits a line at its blanks, a foreign line end's among them. Double quotes, which may stand
/// anywhere in a word, keep blanks in it; inside them `\"`, `\\` and `\n` are escapes. None when a
/// quote does not end.
std::optional<Words> splitIntoWords(std::string_view line);

/// `KEY=VALUE` at its first equals sign; none without one.
std::optional<std::pair<std::string, std::string>> splitKeyAndValue(const std::string& word);

/// A whole number, decimal with an optional minus, or hexadecimal after 0x.
std::optional<std::int64_t> parseNumber(std::string_view word);

/// The same for a status of 32 bits, which may be written as a signed or an unsigned number.
std::optional<std::uint32_t> parseStatus(std::string_view word);

}  // namespace brisel::simulator
