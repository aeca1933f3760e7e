// A panel that reads the status menu over D-Bus and clicks its items.
// SPDX-License-Identifier: MIT
#include "tests/linux/desktop/MenuHost.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace brisel::tests {

namespace {

ShownItem itemFrom(GVariant* wrapped) {
    const OwnedVariant item(g_variant_get_variant(wrapped));
    const OwnedVariant properties(g_variant_get_child_value(item.get(), 1));
    ShownItem shown;
    const char* text = "";
    gboolean enabled = TRUE;
    gint32 toggleState = 0;
    const char* toggleType = "";
    g_variant_get_child(item.get(), 0, "i", &shown.id);
    g_variant_lookup(properties.get(), "enabled", "b", &enabled);
    g_variant_lookup(properties.get(), "toggle-state", "i", &toggleState);
    g_variant_lookup(properties.get(), "toggle-type", "&s", &toggleType);
    if (g_variant_lookup(properties.get(), "label", "&s", &text) != FALSE) shown.label = text;
    if (g_variant_lookup(properties.get(), "type", "&s", &text) != FALSE)
        shown.separator = std::string(text) == "separator";
    shown.enabled = enabled != FALSE;
    shown.checkable = std::string(toggleType) == "checkmark";
    shown.checked = toggleState == 1;
    return shown;
}

std::string orNullText(const ShownItem& item) {
    if (item.separator) return "---";
    const auto* const mark = item.checked ? " [x]" : " [ ]";
    const auto label = item.label + (item.checkable ? mark : "");
    return item.enabled ? label : "(" + label + ")";
}

}  // namespace

std::string ShownMenu::text() const {
    std::string text;
    for (const auto& item : items)
        text += (text.empty() ? "" : " | ") + orNullText(item);
    return text;
}

std::vector<int> ShownMenu::ids() const {
    std::vector<int> ids;
    for (const auto& item : items)
        ids.push_back(item.id);
    return ids;
}

int ShownMenu::idOf(const std::string& label) const {
    const auto found = std::find_if(items.begin(), items.end(),
                                    [&label](const auto& item) { return item.label == label; });
    return found == items.end() ? 0 : found->id;
}

void MenuHost::waitUntilThere() {
    turnUntil([this] {
        return menu_.call("GetLayout", g_variant_new("(iias)", 0, -1, nullptr)) != nullptr;
    });
}

ShownMenu MenuHost::read() {
    waitForDesk();
    ShownMenu menu;
    const auto answer = menu_.callBlocking("GetLayout", g_variant_new("(iias)", 0, -1, nullptr));
    if (!answer) return menu;
    GVariant* children = nullptr;
    g_variant_get(answer.get(), "(u(i@a{sv}@av))", &menu.revision, nullptr, nullptr, &children);
    const OwnedVariant owned(children);
    for (gsize at = 0; at < g_variant_n_children(children); ++at) {
        const OwnedVariant child(g_variant_get_child_value(children, at));
        menu.items.push_back(itemFrom(child.get()));
    }
    return menu;
}

void MenuHost::click(int id) {
    static_cast<void>(menu_.callBlocking(
        "Event", g_variant_new("(isvu)", id, "clicked", g_variant_new_int32(0), 0)));
    waitForDesk();
}

std::vector<std::string> MenuHost::newSignals() {
    waitForDesk();
    return menu_.newSignals();
}

}  // namespace brisel::tests
