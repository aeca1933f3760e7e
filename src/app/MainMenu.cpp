// The status menu's fixed items.
// SPDX-License-Identifier: MIT
#include "app/MainMenu.h"

#include <utility>

#include "app/AppDelegate.h"
#include "platform/Application.h"

namespace brisel {

namespace {

platform::MenuItem fixedItem(const char* title, const char* action,
                             platform::MenuItem::Target target) {
    platform::MenuItem item;
    item.title = title;
    item.action = action;
    item.target = std::move(target);
    return item;
}

}  // namespace

std::vector<platform::MenuItem> mainMenuItems(const std::shared_ptr<AppDelegate>& delegate,
                                              const platform::Platform& platform) {
    platform::MenuItem separator;
    separator.separator = true;
    auto startAtLogin = fixedItem("Start at Login", ToggleStartAtLoginAction,
                                  [delegate](const auto&) { delegate->toggleStartAtLogin(); });
    startAtLogin.checkable = true;
    return {
        startAtLogin,
        fixedItem("About Brisel", BringToFrontAction,
                  [delegate](const auto&) { delegate->bringToFront(); }),
        separator,
        fixedItem("Quit Brisel", TerminateAction,
                  [&application = platform.application](const auto&) { application.terminate(); })};
}

}  // namespace brisel
