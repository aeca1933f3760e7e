// Brisel in a terminal: the platform it runs on, and its commands.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <memory>
#include <optional>
#include <string>

#include "app/AppDelegate.h"
#include "platform/common/Bundle.h"
#include "platform/common/Menu.h"
#include "platform/common/NotificationCenter.h"
#include "platform/headless/Authorization.h"
#include "platform/headless/DiskArbitration.h"
#include "platform/headless/FileManager.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/ScriptRunner.h"
#include "platform/headless/SystemLog.h"
#include "platform/headless/SystemVersion.h"
#include "platform/headless/TerminationSignals.h"
#include "platform/headless/UserDefaults.h"
#include "platform/Platform.h"
#include "platform/terminal/Alert.h"
#include "platform/terminal/Application.h"
#include "platform/terminal/LoginItems.h"
#include "platform/terminal/StatusItem.h"
#include "platform/terminal/Terminal.h"
#include "platform/terminal/UserNotificationCenter.h"
#include "platform/terminal/Workspace.h"

namespace brisel::console {

/// The disks, folders and preferences of this machine, with a terminal for a screen.
class Console {
  public:
    /// Reads commands from the descriptor `input`.
    Console(int input, std::ostream& output);
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    ~Console();

    /// Starts the program and runs it until it terminates.
    void run();

  private:
    void carryOut(const std::optional<std::string>& line);

    platform::headless::TerminationSignals terminationSignals_;
    platform::terminal::Terminal terminal_;
    platform::headless::SystemLog systemLog_{
        [this](const std::string& text) { terminal_.print("log: " + text); }};
    platform::common::Bundle bundle_;
    platform::common::Menu statusMenu_;
    platform::common::NotificationCenter notificationCenter_;
    platform::terminal::Alert alert_{terminal_};
    platform::terminal::Application application_{terminal_, "Brisel " BRISEL_VERSION};
    platform::headless::Authorization authorization_{systemLog_, terminationSignals_.descriptor()};
    platform::headless::DiskArbitration diskArbitration_{systemLog_};
    platform::headless::FileManager fileManager_;
    platform::terminal::LoginItems loginItems_;
    platform::headless::RunLoop runLoop_;
    platform::headless::ScriptRunner scriptRunner_{fileManager_};
    platform::terminal::StatusItem statusItem_{terminal_, statusMenu_,
                                               &platform::headless::whenMainLoopTurns};
    platform::headless::SystemVersion systemVersion_;
    platform::headless::UserDefaults userDefaults_{systemLog_,
                                                   platform::headless::UserDefaults::defaultPath()};
    platform::terminal::UserNotificationCenter userNotificationCenter_{terminal_};
    platform::terminal::Workspace workspace_{terminal_};
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
    std::unique_ptr<GMainLoop, decltype(&g_main_loop_unref)> mainLoop_{
        g_main_loop_new(nullptr, FALSE), &g_main_loop_unref};
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::console
