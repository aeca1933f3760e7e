// The item in the menu bar, by NSStatusItem.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include <memory>

#include "platform/macos/Bundle.h"
#include "platform/macos/Menu.h"
#include "platform/macos/Owned.h"
#include "platform/StatusItem.h"

namespace brisel::platform::macos {

class StatusItem final : public platform::StatusItem {
  public:
    /// `menu` and `bundle` must outlive the item.
    StatusItem(const Menu& menu, const Bundle& bundle) : menu_(menu), bundle_(bundle) {}

    void create(double length) override;
    void showStatusMenu() override;
    /// Also sets the button's accessibility label to the state in words. Sets only what differs
    /// from what is up.
    void setImage(const std::optional<std::string>& name) override;
    [[nodiscard]] std::string effectiveAppearanceName() const override;
    [[nodiscard]] Subscription observeEffectiveAppearance(std::function<void()> changed) override;

  private:
    const Menu& menu_;
    const Bundle& bundle_;
    /// Releasing it removes it from the menu bar.
    Owned<NSStatusItem*> item_;
    /// The name of the image that is up.
    std::optional<std::string> image_;
    /// Shared with the observations, which may outlive the item.
    const std::shared_ptr<bool> settingImage_ = std::make_shared<bool>(false);
};

}  // namespace brisel::platform::macos
