// The status item and its menu as lines on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/common/Menu.h"
#include "platform/linux/MainContext.h"
#include "platform/StatusItem.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

/// Prints the state in words and the menu as numbered lines once the main loop turns, if they
/// differ from what was printed last.
class StatusDisplay final : public platform::StatusItem {
  public:
    StatusDisplay(Terminal& terminal, const common::Menu& menu)
        : terminal_(terminal), menu_(menu) {}

    void create(double /*length*/) override {}
    void showStatusMenu() override {}
    void setImage(const std::optional<std::string>& name) override;
    /// A terminal's colours are its own matter.
    [[nodiscard]] std::string effectiveAppearanceName() const override {
        return "NSAppearanceNameAqua";
    }
    [[nodiscard]] Subscription observeEffectiveAppearance(
        std::function<void()> /*changed*/) override {
        return {};
    }

    /// Prints it now.
    void show();
    /// The item behind a number as printed, or null.
    [[nodiscard]] const MenuItem* itemWithNumber(const std::string& number) const;

  private:
    [[nodiscard]] std::string text() const;
    void showIfChanged();

    Terminal& terminal_;
    const common::Menu& menu_;
    std::string state_;
    std::string shown_;
    linux::MainContextWork pending_;
};

}  // namespace brisel::platform::terminal
