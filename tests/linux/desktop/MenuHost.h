// A panel that reads the status menu over D-Bus and clicks its items.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/linux/desktop/SessionBus.h"

namespace brisel::tests {

struct ShownItem {
    int id = 0;
    std::string label;
    bool separator = false;
    bool enabled = true;
    bool checkable = false;
    bool checked = false;
};

struct ShownMenu {
    std::uint32_t revision = 0;
    std::vector<ShownItem> items;

    /// `LABEL | LABEL | ---`; check items end in [x] or [ ], disabled ones are in parentheses.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::vector<int> ids() const;
    /// ID of the first item with this label; 0 if there is none.
    [[nodiscard]] int idOf(const std::string& label) const;
};

class MenuHost {
  public:
    void waitUntilThere();
    /// Reads the current menu; blocks the calling thread.
    [[nodiscard]] ShownMenu read();
    /// Clicks the item, and waits until the program has received the click.
    void click(int id);
    [[nodiscard]] std::vector<std::string> newSignals();

  private:
    BusCaller menu_{g_dbus_connection_get_unique_name(SessionBus::shared().program()), "/MenuBar",
                    "com.canonical.dbusmenu"};
};

}  // namespace brisel::tests
