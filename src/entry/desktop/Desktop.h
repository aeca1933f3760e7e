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
#include "platform/desktop/Alert.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/LoginItems.h"
#include "platform/desktop/MainThreadQueue.h"
#include "platform/desktop/MenuWindow.h"
#include "platform/desktop/NotificationServer.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/desktop/StatusItem.h"
#include "platform/desktop/UserNotificationCenter.h"
#include "platform/desktop/Workspace.h"
#include "platform/headless/Authorization.h"
#include "platform/headless/DiskArbitration.h"
#include "platform/headless/FileManager.h"
#include "platform/headless/Installation.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/ScriptRunner.h"
#include "platform/headless/SystemLog.h"
#include "platform/headless/SystemVersion.h"
#include "platform/headless/TerminationSignals.h"
#include "platform/headless/UserDefaults.h"
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

    const std::string dialog_ = platform::headless::toolPath("brisel-dialog");
    platform::headless::OwnMainLoop mainLoop_;
    platform::headless::TerminationSignals terminationSignals_;
    platform::headless::SystemLog systemLog_;
    platform::desktop::SingleInstance singleInstance_;
    platform::desktop::MainThreadQueue mainThread_;
    platform::desktop::NotificationServer notifications_;
    platform::common::Bundle bundle_;
    platform::common::Menu statusMenu_;
    platform::common::NotificationCenter notificationCenter_;
    platform::desktop::Alert alert_{{.log = systemLog_,
                                     .mainThread = mainThread_,
                                     .notifications = notifications_,
                                     .interruption = terminationSignals_.descriptor(),
                                     .dialog = dialog_}};
    platform::desktop::Application application_{systemLog_, dialog_};
    platform::headless::Authorization authorization_{systemLog_, terminationSignals_.descriptor()};
    platform::headless::DiskArbitration diskArbitration_{systemLog_};
    platform::headless::FileManager fileManager_;
    platform::desktop::LoginItems loginItems_{systemLog_};
    platform::headless::RunLoop runLoop_;
    platform::headless::ScriptRunner scriptRunner_{fileManager_};
    platform::desktop::StatusItem statusItem_;
    platform::headless::SystemVersion systemVersion_;
    platform::headless::UserDefaults userDefaults_{systemLog_,
                                                   platform::headless::UserDefaults::defaultPath()};
    platform::desktop::UserNotificationCenter userNotificationCenter_{notifications_};
    platform::desktop::Workspace workspace_{systemLog_};
    platform::desktop::MenuWindow menuWindow_{statusItem_, systemLog_, dialog_};
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
