// Brisel on a Linux desktop: the platform it runs on.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>

#include "app/AppDelegate.h"
#include "platform/common/Bundle.h"
#include "platform/common/Menu.h"
#include "platform/common/NotificationCenter.h"
#include "platform/linux/Activation.h"
#include "platform/linux/Alert.h"
#include "platform/linux/Application.h"
#include "platform/linux/Authorization.h"
#include "platform/linux/CommonModesQueue.h"
#include "platform/linux/DiskArbitration.h"
#include "platform/linux/FileManager.h"
#include "platform/linux/Installation.h"
#include "platform/linux/Interruption.h"
#include "platform/linux/LoginItems.h"
#include "platform/linux/MainContext.h"
#include "platform/linux/MenuWindow.h"
#include "platform/linux/NotificationServer.h"
#include "platform/linux/ScriptRunner.h"
#include "platform/linux/StatusItem.h"
#include "platform/linux/SystemLog.h"
#include "platform/linux/SystemVersion.h"
#include "platform/linux/UserDefaults.h"
#include "platform/linux/UserNotificationCenter.h"
#include "platform/linux/Workspace.h"
#include "platform/Platform.h"

namespace brisel::desktop {

class Desktop {
  public:
    /// `bus` is the session's.
    explicit Desktop(GDBusConnection* bus);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop();

    /// Starts the program and runs it until it terminates, or lets the one show its menu that runs
    /// already. Returns the exit status.
    int run();

  private:
    void runFirst();

    const std::string dialog_ = platform::linux::toolPath("brisel-dialog");
    platform::linux::OwnMainLoop mainLoop_;
    platform::linux::Interruption interruption_;
    platform::linux::SystemLog systemLog_;
    platform::linux::Activation activation_;
    platform::linux::CommonModesQueue mainThread_;
    platform::linux::NotificationServer notifications_;
    platform::common::Bundle bundle_;
    platform::common::Menu statusMenu_;
    platform::common::NotificationCenter notificationCenter_;
    platform::linux::Alert alert_{{.log = systemLog_,
                                   .mainThread = mainThread_,
                                   .notifications = notifications_,
                                   .interruption = interruption_.descriptor(),
                                   .dialog = dialog_}};
    platform::linux::Application application_{systemLog_, dialog_};
    platform::linux::Authorization authorization_{systemLog_, interruption_.descriptor()};
    platform::linux::DiskArbitration diskArbitration_{systemLog_};
    platform::linux::FileManager fileManager_;
    platform::linux::LoginItems loginItems_{systemLog_};
    platform::linux::RunLoop runLoop_;
    platform::linux::ScriptRunner scriptRunner_{fileManager_};
    platform::linux::StatusItem statusItem_;
    platform::linux::SystemVersion systemVersion_;
    platform::linux::UserDefaults userDefaults_{systemLog_,
                                                platform::linux::UserDefaults::defaultPath()};
    platform::linux::UserNotificationCenter userNotificationCenter_{notifications_};
    platform::linux::Workspace workspace_{systemLog_};
    platform::linux::MenuWindow menuWindow_{statusItem_, systemLog_, dialog_};
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

}  // namespace brisel::desktop
