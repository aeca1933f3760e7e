// The item in the system's status bar.
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

    /// `length` is in points, or VariableStatusItemLength. Call once, before all other functions.
    virtual void create(double length) = 0;
    /// Attaches the status menu to the item.
    virtual void showStatusMenu() = 0;
    /// An image of the bundle, or no image.
    virtual void setImage(const std::optional<std::string>& name) = 0;
    /// The button's appearance, such as NSAppearanceNameDarkAqua.
    [[nodiscard]] virtual std::string effectiveAppearanceName() const = 0;
    /// Calls `changed` on the main thread, in every main loop mode.
    [[nodiscard]] virtual Subscription observeEffectiveAppearance(
        std::function<void()> changed) = 0;
};

}  // namespace brisel::platform
