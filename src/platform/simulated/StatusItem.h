// The status item of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/common/Signal.h"
#include "platform/simulated/Menu.h"
#include "platform/simulated/Transcript.h"
#include "platform/StatusItem.h"

namespace brisel::platform::simulated {

class StatusItem final : public platform::StatusItem {
  public:
    StatusItem(Transcript& transcript, Menu& menu) : transcript_(transcript), menu_(menu) {}

    void create(double length) override { length_ = length; }
    void showStatusMenu() override { showsMenu_ = true; }
    void setImage(const std::optional<std::string>& name) override;
    [[nodiscard]] std::string effectiveAppearanceName() const override { return appearance_; }
    [[nodiscard]] Subscription observeEffectiveAppearance(std::function<void()> changed) override;

    // Test controls.
    /// Calls the observers before it returns.
    void setAppearance(std::string name);
    /// The length given to `create`; absent before.
    [[nodiscard]] std::optional<double> length() const { return length_; }
    [[nodiscard]] bool showsMenu() const { return showsMenu_; }

  private:
    Transcript& transcript_;
    Menu& menu_;
    std::string appearance_ = "NSAppearanceNameAqua";
    std::optional<double> length_;
    bool showsMenu_ = false;
    common::Signal<> appearanceChanged_;
};

}  // namespace brisel::platform::simulated
