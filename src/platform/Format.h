// Text formatting with placeholders; a missing value prints as (null).
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/FileURL.h"

namespace brisel::platform {

/// The text of a missing value.
inline constexpr std::string_view NullText = "(null)";

/// The value of one placeholder. Refers to its source text; use it only within one expression.
class FormatArgument {
  public:
    explicit FormatArgument(std::string_view text) : text_(text) {}
    explicit FormatArgument(const std::string& text) : text_(text) {}
    explicit FormatArgument(const char* text) : text_(text) {}
    explicit FormatArgument(const std::optional<std::string>& text)
        : text_(text ? std::string_view(*text) : NullText) {}
    explicit FormatArgument(const std::optional<FileURL>& url)
        : made_(url ? url->absoluteString() : std::string(NullText)) {}
    explicit FormatArgument(int number) : made_(std::to_string(number)) {}
    explicit FormatArgument(unsigned long number) : made_(std::to_string(number)) {}

    [[nodiscard]] std::string_view text() const { return made_.empty() ? text_ : made_; }

  private:
    std::string_view text_;
    std::string made_;
};

/// Replaces each placeholder of `format` (`%@`, `%s`, `%i`, `%lu`) with the next argument,
/// unexpanded. Keeps placeholders without an argument.
std::string stringWithFormat(std::string_view format, std::span<const FormatArgument> arguments);

template <typename... Values>
std::string stringWithFormat(std::string_view format, const Values&... values) {
    const std::array<FormatArgument, sizeof...(Values)> arguments{FormatArgument(values)...};
    return stringWithFormat(format, std::span<const FormatArgument>(arguments));
}

/// `value` or NullText.
std::string orNullText(const std::optional<std::string>& value);

/// `text` with A to Z in lower case.
std::string lowercased(std::string text);

}  // namespace brisel::platform
