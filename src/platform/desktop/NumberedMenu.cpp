// Stable numbers for the status menu's items.
// SPDX-License-Identifier: MIT
#include "platform/desktop/NumberedMenu.h"

#include <algorithm>
#include <iterator>
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

// From the bottom up, because the program inserts at the top. A separator has no identity of its
// own: it is the earlier one if the item below is.
std::vector<int> NumberedMenu::keptNumbers(const std::deque<MenuItem>& items) const {
    std::vector<int> numbers(items.size(), NewItem);
    auto earlier = items_.rbegin();
    for (auto at = items.size(); at-- > 0;) {
        const auto& item = items[at];
        const auto end =
            item.separator && earlier != items_.rend() ? std::next(earlier) : items_.rend();
        const auto known = std::find_if(earlier, end, [&item](const auto& numbered) {
            return identityOf(numbered.item) == identityOf(item);
        });
        if (known == end) continue;
        numbers[at] = known->number;
        earlier = std::next(known);
    }
    return numbers;
}

std::vector<MenuEntry> NumberedMenu::update(const std::deque<MenuItem>& items) {
    const auto kept = keptNumbers(items);
    items_.clear();
    std::vector<MenuEntry> entries;
    for (std::size_t at = 0; at < items.size(); ++at) {
        const auto& item = items[at];
        const int number = kept[at] == NewItem ? ++lastNumber_ : kept[at];
        items_.push_back({.number = number, .item = item});
        entries.push_back({.number = number,
                           .kind = kindOf(item),
                           .title = busText(item.title),
                           .checkable = item.checkable,
                           .checked = item.checked});
    }
    return entries;
}

const MenuItem* NumberedMenu::itemWithNumber(int number) const {
    const auto found = std::find_if(items_.begin(), items_.end(), [number](const auto& numbered) {
        return numbered.number == number;
    });
    return found == items_.end() ? nullptr : &found->item;
}

}  // namespace brisel::platform::desktop
