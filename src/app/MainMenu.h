// The status menu's fixed items, for platforms without a nib.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "platform/Menu.h"
#include "platform/Platform.h"

namespace brisel {

class AppDelegate;

inline constexpr const char* ToggleStartAtLoginAction = "toggleStartAtLogin:";
inline constexpr const char* BringToFrontAction = "bringToFront:";
inline constexpr const char* TerminateAction = "terminate:";

/// From the top: Start at Login (a check item), About, separator, Quit, with localised titles. The
/// items keep `delegate` alive.
std::vector<platform::MenuItem> mainMenuItems(const std::shared_ptr<AppDelegate>& delegate,
                                              const platform::Platform& platform);

}  // namespace brisel
