// The services of Brisel.app, which are the system's frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/macos/Alert.h"
#include "platform/macos/Application.h"
#include "platform/macos/Authorization.h"
#include "platform/macos/Bundle.h"
#include "platform/macos/DiskArbitration.h"
#include "platform/macos/FileManager.h"
#include "platform/macos/LoginItems.h"
#include "platform/macos/Menu.h"
#include "platform/macos/NotificationCenter.h"
#include "platform/macos/RunLoop.h"
#include "platform/macos/ScriptRunner.h"
#include "platform/macos/StatusItem.h"
#include "platform/macos/SystemLog.h"
#include "platform/macos/SystemVersion.h"
#include "platform/macos/UserDefaults.h"
#include "platform/macos/UserNotificationCenter.h"
#include "platform/macos/Workspace.h"

namespace brisel::macos {

struct Services {
    platform::macos::Alert alert;
    platform::macos::Application application;
    platform::macos::Authorization authorization;
    platform::macos::Bundle bundle;
    platform::macos::DiskArbitration diskArbitration;
    platform::macos::FileManager fileManager;
    platform::macos::LoginItems loginItems;
    platform::macos::Menu statusMenu;
    platform::macos::NotificationCenter notificationCenter;
    platform::macos::RunLoop runLoop;
    platform::macos::ScriptRunner scriptRunner;
    platform::macos::StatusItem statusItem{statusMenu, bundle};
    platform::macos::SystemLog systemLog;
    platform::macos::SystemVersion systemVersion;
    platform::macos::UserDefaults userDefaults;
    platform::macos::UserNotificationCenter userNotificationCenter;
    platform::macos::Workspace workspace;
};

}  // namespace brisel::macos
