// Parses the menu on brisel-dialog's standard input.
// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brisel::dialog {

enum class EntryKind { Item, CheckedItem, Text, Separator };

struct MenuEntry {
    /// The bytes as given.
    std::string id;
    EntryKind kind = EntryKind::Item;
    /// Sanitized by lineOf.
    std::string title;
};

/// Parses ID<TAB>KIND<TAB>TITLE, without a newline. nullopt for any other line, and for an item
/// without ID or title.
std::optional<MenuEntry> entryFrom(std::string_view line);

/// Reads entries to end of file; skips malformed lines.
std::vector<MenuEntry> readEntries(std::istream& lines);

}  // namespace brisel::dialog
