// The services of brisel, in the tray of a Linux desktop.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <string>

#include "platform/common/Menu.h"
#include "platform/common/NotificationCenter.h"
#include "platform/desktop/ActivationToken.h"
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
#include "platform/headless/Bundle.h"
#include "platform/headless/DiskArbitration.h"
#include "platform/headless/FileManager.h"
#include "platform/headless/Installation.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/ScriptRunner.h"
#include "platform/headless/SystemLog.h"
#include "platform/headless/SystemVersion.h"
#include "platform/headless/TerminationSignals.h"
#include "platform/headless/UserDefaults.h"

namespace brisel::desktop {

struct Services {
    /// `bus` is the session bus.
    explicit Services(GDBusConnection* bus);
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
    ~Services();

    platform::desktop::ActivationToken activationToken;
    const platform::desktop::DialogProgram dialog{
        .path = platform::headless::toolPath("brisel-dialog"), .activationToken = activationToken};
    platform::headless::OwnMainLoop mainLoop;
    platform::headless::TerminationSignals terminationSignals;
    platform::headless::SystemLog systemLog;
    platform::desktop::SingleInstance singleInstance;
    platform::desktop::MainThreadQueue mainThread;
    platform::desktop::NotificationServer notifications;
    platform::headless::Bundle bundle;
    platform::common::Menu statusMenu;
    platform::common::NotificationCenter notificationCenter;
    platform::desktop::Alert alert{{.log = systemLog,
                                    .mainThread = mainThread,
                                    .notifications = notifications,
                                    .terminationSignals = terminationSignals.descriptor(),
                                    .dialog = dialog}};
    platform::desktop::Application application{systemLog, dialog};
    platform::headless::Authorization authorization{terminationSignals.descriptor()};
    platform::headless::DiskArbitration diskArbitration{systemLog};
    platform::headless::FileManager fileManager;
    platform::desktop::LoginItems loginItems{systemLog};
    platform::headless::RunLoop runLoop;
    platform::headless::ScriptRunner scriptRunner{fileManager};
    platform::desktop::StatusItem statusItem;
    platform::headless::SystemVersion systemVersion;
    platform::headless::UserDefaults userDefaults{systemLog,
                                                  platform::headless::UserDefaults::defaultPath()};
    platform::desktop::UserNotificationCenter userNotificationCenter{notifications,
                                                                     activationToken};
    platform::desktop::Workspace workspace;
    platform::desktop::MenuWindow menuWindow{statusItem, systemLog, dialog};
};

}  // namespace brisel::desktop
