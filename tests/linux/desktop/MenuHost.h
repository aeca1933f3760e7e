// A panel that shows the status menu: what it reads of it, what it hears, what is clicked in it.
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
    bool checked = false;
};

struct ShownMenu {
    std::uint32_t revision = 0;
    std::vector<ShownItem> items;

    /// `LABEL | LABEL | ---`, with [x] after what is checked, in brackets what cannot be chosen.
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::vector<int> ids() const;
    /// Of the first item with this label; 0 if there is none.
    [[nodiscard]] int idOf(const std::string& label) const;
};

class MenuHost {
  public:
    /// Waits until the menu is on the bus.
    void waitUntilThere();
    /// The menu as it is; the calling thread does nothing else until it has the answer.
    [[nodiscard]] ShownMenu read();
    /// Clicks, and waits until the click has been taken.
    void click(int id);
    [[nodiscard]] std::vector<std::string> newSignals();

  private:
    BusCaller menu_{g_dbus_connection_get_unique_name(SessionBus::shared().program()), "/MenuBar",
                    "com.canonical.dbusmenu"};
};

}  // namespace brisel::tests
