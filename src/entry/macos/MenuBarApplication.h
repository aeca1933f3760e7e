// Brisel in a Mac's menu bar: the platform it runs on, and the core's application delegate.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/AppDelegate.h"
#include "platform/common/NotificationCenter.h"
#include "platform/macos/Alert.h"
#include "platform/macos/Application.h"
#include "platform/macos/Authorization.h"
#include "platform/macos/Bundle.h"
#include "platform/macos/DiskArbitration.h"
#include "platform/macos/FileManager.h"
#include "platform/macos/LoginItems.h"
#include "platform/macos/Menu.h"
#include "platform/macos/RunLoop.h"
#include "platform/macos/ScriptRunner.h"
#include "platform/macos/StatusItem.h"
#include "platform/macos/SystemLog.h"
#include "platform/macos/SystemVersion.h"
#include "platform/macos/UserDefaults.h"
#include "platform/macos/UserNotificationCenter.h"
#include "platform/macos/Workspace.h"
#include "platform/Platform.h"

namespace brisel::macos {

/// Main thread only. As long as the process.
class MenuBarApplication {
  public:
    /// The process's one; made, and its platform installed, on the first call.
    static MenuBarApplication& shared();

    MenuBarApplication(const MenuBarApplication&) = delete;
    MenuBarApplication& operator=(const MenuBarApplication&) = delete;

    [[nodiscard]] const platform::Platform& platform() const { return platform_; }
    [[nodiscard]] AppDelegate& delegate() { return *delegate_; }
    /// Hands over what the nib holds.
    void connect(NSMenu* statusMenu, NSMenuItem* startAtLogin);

  private:
    MenuBarApplication();
    ~MenuBarApplication() = default;

    platform::common::NotificationCenter notificationCenter_;
    platform::macos::Alert alert_;
    platform::macos::Application application_;
    platform::macos::Authorization authorization_;
    platform::macos::Bundle bundle_;
    platform::macos::DiskArbitration diskArbitration_;
    platform::macos::FileManager fileManager_;
    platform::macos::LoginItems loginItems_;
    platform::macos::Menu statusMenu_;
    platform::macos::RunLoop runLoop_;
    platform::macos::ScriptRunner scriptRunner_;
    platform::macos::StatusItem statusItem_{statusMenu_, bundle_};
    platform::macos::SystemLog systemLog_;
    platform::macos::SystemVersion systemVersion_;
    platform::macos::UserDefaults userDefaults_;
    platform::macos::UserNotificationCenter userNotificationCenter_;
    platform::macos::Workspace workspace_;
    const platform::Platform platform_{.alert = alert_,
                                       .application = application_,
                                       .authorization = authorization_,
                                       .bundle = bundle_,
                                       .diskArbitration = diskArbitration_,
                                       .fileManager = fileManager_,
                                       .loginItems = loginItems_,
                                       .statusMenu = statusMenu_,
                                       .notificationCenter = notificationCenter_,
                                       .runLoop = runLoop_,
                                       .scriptRunner = scriptRunner_,
                                       .statusItem = statusItem_,
                                       .systemLog = systemLog_,
                                       .systemVersion = systemVersion_,
                                       .userDefaults = userDefaults_,
                                       .userNotificationCenter = userNotificationCenter_,
                                       .workspace = workspace_};
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::macos
