// The status menu's fixed items.
// SPDX-License-Identifier: MIT
#include "app/MainMenu.h"

#include <utility>

#include "app/AppDelegate.h"
#include "platform/Application.h"
#include "platform/Bundle.h"

namespace brisel {

namespace {

platform::MenuItem fixedItem(std::string title, const char* action,
                             platform::MenuItem::Target target) {
    platform::MenuItem item;
    item.title = std::move(title);
    item.action = action;
    item.target = std::move(target);
    return item;
}

}  // namespace

std::vector<platform::MenuItem> mainMenuItems(const std::shared_ptr<AppDelegate>& delegate,
                                              const platform::Platform& platform) {
    const auto& bundle = platform.bundle;
    platform::MenuItem separator;
    separator.separator = true;
    auto startAtLogin =
        fixedItem(bundle.localizedString("Start at Login"), ToggleStartAtLoginAction,
                  [delegate](const auto&) { delegate->toggleStartAtLogin(); });
    startAtLogin.checkable = true;
    return {
        startAtLogin,
        fixedItem(bundle.localizedString("About Brisel"), BringToFrontAction,
                  [delegate](const auto&) { delegate->bringToFront(); }),
        separator,
        fixedItem(bundle.localizedString("Quit Brisel"), TerminateAction,
                  [&application = platform.application](const auto&) { application.terminate(); })};
}

}  // namespace brisel
