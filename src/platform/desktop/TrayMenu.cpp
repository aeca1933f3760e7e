// The status menu on the session bus.
// SPDX-License-Identifier: MIT
#include "platform/desktop/TrayMenu.h"

#include <algorithm>
#include <string>
#include <utility>

namespace brisel::platform::desktop {

namespace {

// Doubles underscores: dbusmenu takes a single one for a mnemonic.
std::string labelOf(const std::string& title) {
    std::string label;
    for (const char character : title) {
        label += character;
        if (character == '_') label += '_';
    }
    return label;
}

// libdbusmenu announces a property only if its value changed.
void describe(DbusmenuMenuitem* item, const MenuEntry& entry) {
    if (entry.kind == MenuEntry::Kind::Separator) {
        dbusmenu_menuitem_property_set(item, DBUSMENU_MENUITEM_PROP_TYPE, "separator");
        return;
    }
    const auto label = labelOf(entry.title);
    dbusmenu_menuitem_property_set(item, DBUSMENU_MENUITEM_PROP_LABEL, label.c_str());
    dbusmenu_menuitem_property_set_bool(item, DBUSMENU_MENUITEM_PROP_ENABLED,
                                        entry.kind == MenuEntry::Kind::Choosable ? TRUE : FALSE);
    if (!entry.checkable) return;
    // From the first layout on: Plasma takes no notice of a later one.
    dbusmenu_menuitem_property_set(item, DBUSMENU_MENUITEM_PROP_TOGGLE_TYPE,
                                   DBUSMENU_MENUITEM_TOGGLE_CHECK);
    dbusmenu_menuitem_property_set_int(item, DBUSMENU_MENUITEM_PROP_TOGGLE_STATE,
                                       entry.checked ? DBUSMENU_MENUITEM_TOGGLE_STATE_CHECKED
                                                     : DBUSMENU_MENUITEM_TOGGLE_STATE_UNCHECKED);
}

void tellChosen(DbusmenuMenuitem* item, guint /*timestamp*/, gpointer chosen) {
    (*static_cast<TrayMenu::Chosen*>(chosen))(dbusmenu_menuitem_get_id(item));
}

// The menu needs no update before it is shown.
gboolean tellOpening(DbusmenuMenuitem* /*root*/, gpointer opening) {
    (*static_cast<std::function<void()>*>(opening))();
    return FALSE;
}

bool contains(const std::vector<MenuEntry>& entries, int number) {
    return std::any_of(entries.begin(), entries.end(),
                       [number](const auto& entry) { return entry.number == number; });
}

}  // namespace

TrayMenu::TrayMenu(Chosen chosen, std::function<void()> opening)
    : chosen_(std::move(chosen)), opening_(std::move(opening)) {
    dbusmenu_server_set_root(server_.get(), root_.get());
    g_signal_connect(root_.get(), DBUSMENU_MENUITEM_SIGNAL_ABOUT_TO_SHOW,
                     reinterpret_cast<GCallback>(&tellOpening), &opening_);
}

void TrayMenu::show(const std::vector<MenuEntry>& entries) {
    for (auto item = items_.begin(); item != items_.end();) {
        if (contains(entries, item->first)) {
            ++item;
        } else {
            dbusmenu_menuitem_child_delete(root_.get(), item->second.get());
            item = items_.erase(item);
        }
    }
    for (const auto& entry : entries) {
        auto& item = items_[entry.number];
        if (!item) item = makeItem(entry);
        describe(item.get(), entry);
    }
    insertNew(entries);
}

headless::OwnedObject<DbusmenuMenuitem> TrayMenu::makeItem(const MenuEntry& entry) {
    headless::OwnedObject<DbusmenuMenuitem> item(dbusmenu_menuitem_new_with_id(entry.number));
    g_signal_connect(item.get(), DBUSMENU_MENUITEM_SIGNAL_ITEM_ACTIVATED,
                     reinterpret_cast<GCallback>(&tellChosen), &chosen_);
    return item;
}

void TrayMenu::insertNew(const std::vector<MenuEntry>& entries) {
    guint position = 0;
    for (const auto& entry : entries) {
        auto* const item = items_.at(entry.number).get();
        if (dbusmenu_menuitem_get_parent(item) == nullptr) {
            dbusmenu_menuitem_child_add_position(root_.get(), item, position);
        }
        ++position;
    }
}

}  // namespace brisel::platform::desktop
