// The item in the menu bar, by NSStatusItem.
// SPDX-License-Identifier: MIT
#import "platform/macos/StatusItem.h"

#include <memory>
#include <utility>

#include "platform/common/StatusWords.h"
#include "platform/macos/AppearanceObservation.h"
#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

void StatusItem::create(double length) {
    item_ = retained([[NSStatusBar systemStatusBar] statusItemWithLength:length]);
}

void StatusItem::showStatusMenu() {
    [item_.get() setMenu:menu_.menu()];
}

void StatusItem::setImage(const std::optional<std::string>& name) {
    NSStatusBarButton* const button = [item_.get() button];
    if (button == nil) return;
    if (name != image_) {
        *settingImage_ = true;
        const bool set = guarded("show the icon", [&] {
            [button setImage:name ? [NSImage imageNamed:nsString(*name)] : nil];
        });
        *settingImage_ = false;
        if (set) image_ = name;
    }
    const auto words = common::statusWords(name.value_or(std::string()));
    const auto label = "Brisel" + (words.empty() ? "" : ": " + bundle_.localizedString(words));
    if (stdString([button accessibilityLabel]) != label) {
        [button setAccessibilityLabel:nsString(label)];
    }
}

std::string StatusItem::effectiveAppearanceName() const {
    return stdString([[[item_.get() button] effectiveAppearance] name]);
}

Subscription StatusItem::observeEffectiveAppearance(std::function<void()> changed) {
    // Removing an observer that was never added raises an exception, so the subscription removes
    // only one that was.
    NSStatusBarButton* const button = [item_.get() button];
    if (button == nil) return {};
    const auto observation = std::make_shared<std::optional<AppearanceObservation>>();
    guarded("observe the appearance",
            [&] { observation->emplace(button, settingImage_, std::move(changed)); });
    return Subscription([observation] { observation->reset(); });
}

}  // namespace brisel::platform::macos
