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
    /// May be empty, and may hold line ends.
    std::string informative;
    /// Titles from the default button on; never empty.
    std::vector<std::string> buttons;
};

struct AboutRequest {};

/// Its entries come by standard input.
struct MenuRequest {
    std::string title;
};

using Request = std::variant<AlertRequest, AboutRequest, MenuRequest>;

/// What the arguments, without the program's name, ask for; its texts can be shown as they are.
/// Nothing if they ask for nothing that is known.
std::optional<Request> requestFrom(std::span<const char* const> words);

/// How the program is used, in lines.
extern const char* const Usage;

}  // namespace brisel::dialog
