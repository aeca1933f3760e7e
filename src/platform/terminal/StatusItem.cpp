// The status item and its menu as lines on the terminal.
// SPDX-License-Identifier: MIT
#include "platform/terminal/StatusItem.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "platform/common/StatusWords.h"
#include "platform/common/VisibleText.h"

namespace brisel::platform::terminal {

namespace {

bool isChoosable(const MenuItem& item) {
    return !item.separator && !item.action.empty();
}

std::vector<MenuItem> choosableItems(const common::Menu& menu) {
    std::vector<MenuItem> items;
    std::copy_if(menu.items().begin(), menu.items().end(), std::back_inserter(items), &isChoosable);
    return items;
}

}  // namespace

void StatusItem::setImage(const std::optional<std::string>& name) {
    state_ = common::statusWords(name.value_or(""));
    pending_ = later_([this] { showIfChanged(); });
}

std::string StatusItem::text() const {
    std::string text = "[Brisel: " + state_ + "]\n";
    std::size_t number = 0;
    for (const auto& item : menu_.items()) {
        if (item.separator) {
            text += "      ----\n";
        } else if (isChoosable(item)) {
            const auto digits = std::to_string(++number);
            text += std::string(digits.size() < 2 ? "   " : "  ") + digits + "  " +
                    common::visible(item.title) + (item.checked ? " [x]" : "") + "\n";
        } else {
            text += "      " + common::visible(item.title) + "\n";
        }
    }
    return text;
}

void StatusItem::showIfChanged() {
    if (text() != shown_) show();
}

void StatusItem::show() {
    shown_ = text();
    shownItems_ = choosableItems(menu_);
    std::string_view rest = shown_;
    while (!rest.empty()) {
        const auto end = rest.find('\n');
        terminal_.print(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
}

const MenuItem* StatusItem::itemWithNumber(const std::string& number) const {
    const auto position = numberUpTo(number, shownItems_.size());
    return position ? &shownItems_[*position - 1] : nullptr;
}

}  // namespace brisel::platform::terminal
