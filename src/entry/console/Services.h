// The services of brisel-console.
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "platform/common/Menu.h"
#include "platform/common/NotificationCenter.h"
#include "platform/headless/Authorization.h"
#include "platform/headless/Bundle.h"
#include "platform/headless/DiskArbitration.h"
#include "platform/headless/FileManager.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/ScriptRunner.h"
#include "platform/headless/SystemLog.h"
#include "platform/headless/SystemVersion.h"
#include "platform/headless/TerminationSignals.h"
#include "platform/headless/UserDefaults.h"
#include "platform/terminal/Alert.h"
#include "platform/terminal/Application.h"
#include "platform/terminal/LoginItems.h"
#include "platform/terminal/StatusItem.h"
#include "platform/terminal/Terminal.h"
#include "platform/terminal/UserNotificationCenter.h"
#include "platform/terminal/Workspace.h"

namespace brisel::console {

/// The disks, folders and preferences of this machine, with a terminal for a screen.
struct Services {
    /// Reads commands from the descriptor `input`. Both must outlive the services.
    Services(int input, std::ostream& output)
        : terminal(input, output, terminationSignals.descriptor()) {}
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
    ~Services() = default;

    platform::headless::TerminationSignals terminationSignals;
    platform::terminal::Terminal terminal;
    platform::headless::SystemLog systemLog{
        [this](const std::string& text) { terminal.print("log: " + text); }};
    platform::headless::Bundle bundle;
    platform::common::Menu statusMenu;
    platform::common::NotificationCenter notificationCenter;
    platform::terminal::Alert alert{terminal};
    platform::terminal::Application application{terminal, "Brisel " BRISEL_VERSION};
    platform::headless::Authorization authorization{terminationSignals.descriptor()};
    platform::headless::DiskArbitration diskArbitration{systemLog};
    platform::headless::FileManager fileManager;
    platform::terminal::LoginItems loginItems;
    platform::headless::RunLoop runLoop;
    platform::headless::ScriptRunner scriptRunner{fileManager};
    platform::terminal::StatusItem statusItem{terminal, statusMenu,
                                              &platform::headless::whenMainLoopTurns};
    platform::headless::SystemVersion systemVersion;
    platform::headless::UserDefaults userDefaults{systemLog,
                                                  platform::headless::UserDefaults::defaultPath()};
    platform::terminal::UserNotificationCenter userNotificationCenter{terminal};
    platform::terminal::Workspace workspace{terminal};
};

}  // namespace brisel::console
