// Parses the menu on brisel-dialog's standard input.
// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brisel::dialog {

enum class MenuLineKind { Item, CheckedItem, Text, Separator };

struct MenuLine {
    /// The bytes as given.
    std::string id;
    MenuLineKind kind = MenuLineKind::Item;
    /// Sanitized by sanitizedLine.
    std::string title;
};

/// Parses ID<TAB>KIND<TAB>TITLE, without a newline. nullopt for any other line, and for an item
/// without ID or title.
std::optional<MenuLine> menuLineFrom(std::string_view line);

/// Reads entries to end of file; skips malformed lines.
std::vector<MenuLine> readMenuLines(std::istream& lines);

}  // namespace brisel::dialog
