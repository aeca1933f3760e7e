// Stable numbers for the status menu's items.
// SPDX-License-Identifier: MIT
#include "platform/desktop/NumberedMenu.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "platform/desktop/BusText.h"

namespace brisel::platform::desktop {

namespace {

using Identity = std::tuple<const void*, std::string_view, std::string, bool>;

Identity identityOf(const MenuItem& item) {
    return {item.representedObject.get(), item.action, item.title, item.separator};
}

MenuEntry::Kind kindOf(const MenuItem& item) {
    if (item.separator) return MenuEntry::Kind::Separator;
    return item.action.empty() ? MenuEntry::Kind::Text : MenuEntry::Kind::Choosable;
}

}  // namespace

std::vector<MenuEntry> NumberedMenu::update(const std::deque<MenuItem>& items) {
    std::multimap<Identity, int> before;
    for (const auto& [number, item] : items_)
        before.emplace(identityOf(item), number);
    std::vector<Numbered> now;
    std::vector<MenuEntry> entries;
    for (const auto& item : items) {
        auto known = before.extract(identityOf(item));
        const int number = known.empty() ? ++lastNumber_ : known.mapped();
        now.push_back({.number = number, .item = item});
        entries.push_back({.number = number,
                           .kind = kindOf(item),
                           .title = busText(item.title),
                           .checkable = item.checkable,
                           .checked = item.checked});
    }
    items_ = std::move(now);
    return entries;
}

const MenuItem* NumberedMenu::itemWithNumber(int number) const {
    const auto found = std::find_if(items_.begin(), items_.end(), [number](const auto& numbered) {
        return numbered.number == number;
    });
    return found == items_.end() ? nullptr : &found->item;
}

}  // namespace brisel::platform::desktop
