// The status item and its menu as lines on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/common/Menu.h"
#include "platform/StatusItem.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

/// Prints the state and the numbered menu when the main loop is idle, if they have changed.
class StatusItem final : public platform::StatusItem {
  public:
    /// Schedules `work` on the main loop until the subscription ends.
    using Later = std::function<Subscription(std::function<void()> work)>;

    StatusItem(Terminal& terminal, const common::Menu& menu, Later later)
        : terminal_(terminal), menu_(menu), later_(std::move(later)) {}

    void create(double /*length*/) override {}
    void showStatusMenu() override {}
    void setImage(const std::optional<std::string>& name) override;
    /// Constant: a terminal has no appearance.
    [[nodiscard]] std::string effectiveAppearanceName() const override {
        return "NSAppearanceNameAqua";
    }
    [[nodiscard]] Subscription observeEffectiveAppearance(
        std::function<void()> /*changed*/) override {
        return {};
    }

    /// Prints now, changed or not.
    void show();
    /// The item with this number in the last printed menu, or null.
    [[nodiscard]] const MenuItem* itemWithNumber(const std::string& number) const;

  private:
    [[nodiscard]] std::string text() const;
    void showIfChanged();

    Terminal& terminal_;
    const common::Menu& menu_;
    std::string state_;
    std::string shown_;
    std::vector<MenuItem> shownItems_;
    Later later_;
    Subscription pending_;
};

}  // namespace brisel::platform::terminal
