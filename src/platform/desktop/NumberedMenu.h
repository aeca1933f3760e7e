// Stable numbers for the status menu's items, for the bus and the menu window.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/Menu.h"

namespace brisel::platform::desktop {

/// A menu item as shown in the tray or the menu window.
struct MenuEntry {
    enum class Kind { Choosable, Text, Separator };

    int number = 0;
    Kind kind = Kind::Text;
    std::string title;
    bool checkable = false;
    bool checked = false;

    bool operator==(const MenuEntry&) const = default;
};

/// An item keeps its number across rebuilds while its object, action and title stay the same and it
/// keeps its place among the others. GNOME's extension moves no item that it knows. Numbers are
/// never reused. So a host can update an open menu in place, and a choice from an outdated menu is
/// ignored.
class NumberedMenu {
  public:
    /// Replaces the items; returns the entries to show, in order.
    std::vector<MenuEntry> update(const std::deque<MenuItem>& items);
    /// The item of the last update with this number, or null.
    [[nodiscard]] const MenuItem* itemWithNumber(int number) const;

  private:
    struct Numbered {
        int number = 0;
        MenuItem item;
    };

    /// The number that each item keeps, NewItem for none.
    [[nodiscard]] std::vector<int> keptNumbers(const std::deque<MenuItem>& items) const;

    static constexpr int NewItem = 0;

    std::vector<Numbered> items_;
    int lastNumber_ = 0;
};

}  // namespace brisel::platform::desktop
