// Observes the appearance of a status item's button.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include <functional>
#include <memory>

#include "platform/macos/Owned.h"

@class BriselAppearanceObserver;

namespace brisel::platform::macos {

/// Until destroyed, calls `changed` once for all notifications of effectiveAppearance within 0.1 s:
/// the first may come with a passing value. Ignores notifications while `*settingImage`, because an
/// assigned image makes the button resolve its appearance anew; to answer that with another image
/// would be an endless loop.
class AppearanceObservation {
  public:
    AppearanceObservation(NSStatusBarButton* button, std::shared_ptr<const bool> settingImage,
                          std::function<void()> changed);
    AppearanceObservation(const AppearanceObservation&) = delete;
    AppearanceObservation& operator=(const AppearanceObservation&) = delete;
    ~AppearanceObservation();

  private:
    Owned<NSStatusBarButton*> button_;
    Owned<BriselAppearanceObserver*> observer_;
};

}  // namespace brisel::platform::macos
