// The menu that `brisel-dialog` reads from its standard input.
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
    /// As it was given, byte by byte.
    std::string id;
    EntryKind kind = EntryKind::Item;
    /// Can be shown as it is.
    std::string title;
};

/// The entry of a line ID<TAB>KIND<TAB>TITLE, without its line end. Nothing for any other line, and
/// for an item that could not be told from others or be seen: without an ID or a title.
std::optional<MenuEntry> entryFrom(std::string_view line);

/// The entries of all lines until the end, without lines that are none.
std::vector<MenuEntry> readEntries(std::istream& lines);

}  // namespace brisel::dialog
