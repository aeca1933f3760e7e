// Text made from a format and values: the one place that knows how a missing value prints.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/FileURL.h"

namespace brisel::platform {

/// What a missing value prints as.
inline constexpr std::string_view NullText = "(null)";

/// One value for a placeholder. Refers to the text it is made from: use it within one expression.
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

/// Replaces each placeholder of `format` (`%@`, `%s`, `%i`, `%lu`) by the next argument. The
/// arguments themselves are never read as formats; a placeholder without one stays as it is.
std::string stringWithFormat(std::string_view format, std::span<const FormatArgument> arguments);

template <typename... Values>
std::string stringWithFormat(std::string_view format, const Values&... values) {
    const std::array<FormatArgument, sizeof...(Values)> arguments{FormatArgument(values)...};
    return stringWithFormat(format, std::span<const FormatArgument>(arguments));
}

/// `value` as text, or what a missing one prints as.
std::string textOf(const std::optional<std::string>& value);

/// `text` with the letters A to Z in lower case.
std::string lowercased(std::string text);

}  // namespace brisel::platform
