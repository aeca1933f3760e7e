// The status item of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/StatusItem.h"

#include <utility>

namespace brisel::platform::simulated {

void StatusItem::setImage(const std::optional<std::string>& name) {
    if (menu_.takeRebuilt()) transcript_.record("menu: %@", menu_.titles());
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
