// The status menu as a list of items.
// SPDX-License-Identifier: MIT
#include "platform/common/Menu.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace brisel::platform::common {

void Menu::removeItemsWithTags(std::span<const int> tags) {
    std::erase_if(items_, [tags](const MenuItem& item) {
        return std::find(tags.begin(), tags.end(), item.tag) != tags.end();
    });
    changed_();
}

void Menu::insertItem(MenuItem item, std::size_t index) {
    assert(index <= items_.size());
    items_.insert(std::next(items_.begin(), static_cast<std::ptrdiff_t>(index)), std::move(item));
    changed_();
}

void Menu::setChecked(std::string_view action, bool checked) {
    for (auto& item : items_) {
        if (item.action == action) item.checked = checked;
    }
    changed_();
}

void Menu::load(std::vector<MenuItem> items) {
    items_.assign(std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
    changed_();
}

void choose(const MenuItem& item) {
    // A copy: the menu may be rebuilt by what the item does.
    const auto sender = item;
    if (sender.target) sender.target(sender);
}

}  // namespace brisel::platform::common
