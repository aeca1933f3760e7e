// The fixed items of the status menu, for platforms that load no nib.
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

/// From the top: the start-at-login check item, About, a separator, Quit. Their titles are the
/// interface's own and the same in every language. The items keep the delegate alive.
std::vector<platform::MenuItem> mainMenuItems(const std::shared_ptr<AppDelegate>& delegate,
                                              const platform::Platform& platform);

}  // namespace brisel
