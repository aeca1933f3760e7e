// The command line of `brisel-dialog`.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace brisel::dialog {

struct AlertRequest {
    std::string message;
    /// May be empty and contain newlines.
    std::string informative;
    /// Titles, the default button's first; never empty.
    std::vector<std::string> buttons;
};

struct AboutRequest {};

/// The entries come from standard input.
struct MenuRequest {
    std::string title;
};

using DialogRequest = std::variant<AlertRequest, AboutRequest, MenuRequest>;

/// Parses the arguments without the program's name, and sanitizes their texts. nullopt if
/// malformed.
std::optional<DialogRequest> dialogRequestFrom(std::span<const char* const> words);

extern const char* const Usage;

}  // namespace brisel::dialog
