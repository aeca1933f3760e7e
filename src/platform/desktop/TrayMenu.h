// The status menu on the session bus, as com.canonical.dbusmenu.
// SPDX-License-Identifier: MIT
#pragma once

#include <libdbusmenu-glib/server.h>

#include <functional>
#include <map>
#include <vector>

#include "platform/desktop/NumberedMenu.h"
#include "platform/headless/GLibOwners.h"

namespace brisel::platform::desktop {

/// Use only on the thread that runs GLib's default context, on which libdbusmenu works.
class TrayMenu {
  public:
    static constexpr const char* ObjectPath = "/MenuBar";

    using Chosen = std::function<void(int number)>;

    /// Calls `opening` when a host is about to show the menu.
    TrayMenu(Chosen chosen, std::function<void()> opening);
    TrayMenu(const TrayMenu&) = delete;
    TrayMenu& operator=(const TrayMenu&) = delete;
    ~TrayMenu() = default;

    /// Replaces the entries of a NumberedMenu; hosts are sent only the changes.
    void show(const std::vector<MenuEntry>& entries);

  private:
    using Items = std::map<int, headless::OwnedObject<DbusmenuMenuitem>>;

    [[nodiscard]] headless::OwnedObject<DbusmenuMenuitem> makeItem(const MenuEntry& entry);
    /// The others are in order: a NumberedMenu moves no entry.
    void insertNew(const std::vector<MenuEntry>& entries);

    Chosen chosen_;
    std::function<void()> opening_;
    headless::OwnedObject<DbusmenuServer> server_{dbusmenu_server_new(ObjectPath)};
    headless::OwnedObject<DbusmenuMenuitem> root_{dbusmenu_menuitem_new_with_id(0)};
    Items items_;
};

}  // namespace brisel::platform::desktop
