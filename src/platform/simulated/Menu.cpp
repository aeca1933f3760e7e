// The status menu of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Menu.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace brisel::platform::simulated {

void Menu::removeItemsWithTags(std::span<const int> tags) {
    std::erase_if(items_, [tags](const MenuItem& item) {
        return std::find(tags.begin(), tags.end(), item.tag) != tags.end();
    });
    rebuilt_ = true;
}

void Menu::insertItem(MenuItem item, std::size_t index) {
    assert(index <= items_.size());
    items_.insert(std::next(items_.begin(), static_cast<std::ptrdiff_t>(index)), std::move(item));
    rebuilt_ = true;
}

void Menu::setChecked(std::string_view action, bool checked) {
    for (auto& item : items_) {
        if (item.action == action) item.checked = checked;
    }
}

void Menu::load(std::vector<MenuItem> items) {
    items_.assign(std::make_move_iterator(items.begin()), std::make_move_iterator(items.end()));
}

std::string Menu::titles() const {
    std::string text;
    for (const auto& item : items_) {
        if (!text.empty()) text += " | ";
        text += item.separator ? "---" : item.title;
        if (item.checked) text += " [x]";
    }
    return text;
}

bool Menu::takeRebuilt() {
    return std::exchange(rebuilt_, false);
}

}  // namespace brisel::platform::simulated
