// The item in the system's status bar: its button's image and appearance.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Subscription.h"

namespace brisel::platform {

/// NSVariableStatusItemLength.
inline constexpr double VariableStatusItemLength = -1.0;

/// Main thread only.
class StatusItem {
  public:
    virtual ~StatusItem() = default;

    /// Puts the item into the status bar, `length` points wide or as wide as its image. Once,
    /// before all else.
    virtual void create(double length) = 0;
    /// Lets the item show the status menu from now on.
    virtual void showStatusMenu() = 0;
    /// Shows the image of this name (see Bundle), or none.
    virtual void setImage(const std::optional<std::string>& name) = 0;
    /// The name of the button's appearance, such as NSAppearanceNameDarkAqua.
    [[nodiscard]] virtual std::string effectiveAppearanceName() const = 0;
    /// Calls `changed` on the main thread, in every mode of the loop, when the appearance changes.
    [[nodiscard]] virtual Subscription observeEffectiveAppearance(
        std::function<void()> changed) = 0;
};

}  // namespace brisel::platform
