// Text formatting with placeholders.
// SPDX-License-Identifier: MIT
#include "platform/Format.h"

#include <algorithm>

namespace brisel::platform {

namespace {

constexpr std::array<std::string_view, 4> Placeholders{"%@", "%s", "%i", "%lu"};

std::size_t placeholderLength(std::string_view text) {
    const auto* const found = std::find_if(
        Placeholders.begin(), Placeholders.end(),
        [text](std::string_view placeholder) { return text.starts_with(placeholder); });
    return found == Placeholders.end() ? 0 : found->size();
}

std::size_t longestResult(std::string_view format, std::span<const FormatArgument> arguments) {
    std::size_t length = format.size();
    for (const auto& argument : arguments)
        length += argument.text().size();
    return length;
}

}  // namespace

std::string stringWithFormat(std::string_view format, std::span<const FormatArgument> arguments) {
    std::string text;
    text.reserve(longestResult(format, arguments));
    while (!format.empty()) {
        const std::size_t length = placeholderLength(format);
        if (length == 0 || arguments.empty()) {
            text += format.front();
            format.remove_prefix(1);
            continue;
        }
        text += arguments.front().text();
        arguments = arguments.subspan(1);
        format.remove_prefix(length);
    }
    return text;
}

std::string orNullText(const std::optional<std::string>& value) {
    return value ? *value : std::string(NullText);
}

std::string lowercased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char character) {
        const bool upper = character >= 'A' && character <= 'Z';
        return upper ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return text;
}

}  // namespace brisel::platform
