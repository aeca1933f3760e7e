// The status item of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/StatusItem.h"

#include <utility>

namespace brisel::platform::simulated {

namespace {

// `TITLE | TITLE | ---` from the top; a checked item ends in ` [x]`.
std::string titles(const common::Menu& menu) {
    std::string text;
    for (const auto& item : menu.items()) {
        if (!text.empty()) text += " | ";
        text += item.separator ? "---" : item.title;
        if (item.checked) text += " [x]";
    }
    return text;
}

}  // namespace

void StatusItem::setImage(const std::optional<std::string>& name) {
    if (menu_.takeRebuilt()) transcript_.record("menu: %@", titles(menu_));
    transcript_.record("icon: %@", name.value_or("(none)"));
}

Subscription StatusItem::observeEffectiveAppearance(std::function<void()> changed) {
    return appearanceChanged_.subscribe(std::move(changed));
}

void StatusItem::setAppearance(std::string name) {
    appearance_ = std::move(name);
    appearanceChanged_();
}

}  // namespace brisel::platform::simulated
