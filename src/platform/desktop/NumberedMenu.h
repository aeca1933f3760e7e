// The status menu's items under numbers, as the bus and the menu window know them.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/Menu.h"

namespace brisel::platform::desktop {

/// What a host shows of an item.
struct MenuEntry {
    enum class Kind { Choosable, Text, Separator };

    int number = 0;
    Kind kind = Kind::Text;
    std::string title;
    bool checked = false;

    bool operator==(const MenuEntry&) const = default;
};

/// An item keeps its number as long as it stands for the same action on the same thing, however
/// often the menu is rebuilt; a number is never used again. So a host can update an open menu in
/// place, and what was chosen from an outdated one is nothing, not something else.
class NumberedMenu {
  public:
    /// Takes the items over; returns what to show of them, in order.
    std::vector<MenuEntry> update(const std::deque<MenuItem>& items);
    /// The item of the last update with this number, or null.
    [[nodiscard]] const MenuItem* itemWithNumber(int number) const;

  private:
    struct Numbered {
        int number = 0;
        MenuItem item;
    };

    std::vector<Numbered> items_;
    int lastNumber_ = 0;
};

}  // namespace brisel::platform::desktop
