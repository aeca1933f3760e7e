// Brisel in a Mac's menu bar.
// SPDX-License-Identifier: MIT
#import "entry/macos/MenuBarApplication.h"

namespace brisel::macos {

MenuBarApplication& MenuBarApplication::shared() {
    // Never destroyed: the system may call back as long as the process lives.
    static auto& application = *new MenuBarApplication();
    return application;
}

MenuBarApplication::MenuBarApplication() {
    platform::install(platform());
    delegate_ = std::make_shared<AppDelegate>(platform());
}

void MenuBarApplication::connect(NSMenu* statusMenu, NSMenuItem* startAtLogin) {
    services_.statusMenu.connect(statusMenu, startAtLogin, services_.bundle);
}

}  // namespace brisel::macos
