// The item in the menu bar, by NSStatusItem.
// SPDX-License-Identifier: MIT
#import "platform/macos/StatusItem.h"

#include <memory>
#include <utility>

#include "platform/common/StatusWords.h"
#include "platform/macos/Exceptions.h"
#include "platform/macos/Text.h"

@interface BriselAppearanceObserver : NSObject {
  @public
    std::function<void()> changed;
}
@end

@implementation BriselAppearanceObserver

// Does not call super, which observes nothing.
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary<NSKeyValueChangeKey, id>*)change
                       context:(void*)context {
    (void)object;
    (void)change;
    (void)context;
    if (![keyPath isEqualToString:@"effectiveAppearance"]) return;
    // A copy: the call may end the observation.
    const auto call = changed;
    call();
}

@end

namespace brisel::platform::macos {

namespace {

/// Observes a button's effectiveAppearance until destroyed.
class AppearanceObservation {
  public:
    AppearanceObservation(NSStatusBarButton* button, std::function<void()> changed)
        : button_(retained(button)), observer_([[BriselAppearanceObserver alloc] init]) {
        observer_.get()->changed = std::move(changed);
        [button_.get() addObserver:observer_.get()
                        forKeyPath:@"effectiveAppearance"
                           options:0
                           context:nullptr];
    }
    AppearanceObservation(const AppearanceObservation&) = delete;
    AppearanceObservation& operator=(const AppearanceObservation&) = delete;
    ~AppearanceObservation() {
        guarded("stop observing the appearance", [this] {
            [button_.get() removeObserver:observer_.get() forKeyPath:@"effectiveAppearance"];
        });
    }

  private:
    Owned<NSStatusBarButton*> button_;
    Owned<BriselAppearanceObserver*> observer_;
};

}  // namespace

void StatusItem::create(double length) {
    item_ = retained([[NSStatusBar systemStatusBar] statusItemWithLength:length]);
}

void StatusItem::showStatusMenu() {
    [item_.get() setMenu:menu_.menu()];
}

void StatusItem::setImage(const std::optional<std::string>& name) {
    NSStatusBarButton* const button = [item_.get() button];
    const auto words = common::statusWords(name.value_or(std::string()));
    const auto label = "Brisel" + (words.empty() ? "" : ": " + bundle_.localizedString(words));
    [button setAccessibilityLabel:nsString(label)];
    [button setImage:name ? [NSImage imageNamed:nsString(*name)] : nil];
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
    guarded("observe the appearance", [&] { observation->emplace(button, std::move(changed)); });
    return Subscription([observation] { observation->reset(); });
}

}  // namespace brisel::platform::macos
