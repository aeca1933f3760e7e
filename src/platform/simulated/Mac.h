// A Mac in memory: the program's whole surroundings, and the strings to pull.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/common/Bundle.h"
#include "platform/common/Menu.h"
#include "platform/common/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/simulated/Alert.h"
#include "platform/simulated/Application.h"
#include "platform/simulated/Authorization.h"
#include "platform/simulated/DiskArbitration.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/FileManager.h"
#include "platform/simulated/FileSystem.h"
#include "platform/simulated/LoginItems.h"
#include "platform/simulated/MainLoop.h"
#include "platform/simulated/Person.h"
#include "platform/simulated/ScriptRunner.h"
#include "platform/simulated/StatusItem.h"
#include "platform/simulated/SystemLog.h"
#include "platform/simulated/SystemVersion.h"
#include "platform/simulated/Transcript.h"
#include "platform/simulated/UserDefaults.h"
#include "platform/simulated/UserNotificationCenter.h"
#include "platform/simulated/Workspace.h"

namespace brisel::platform::simulated {

/// Each member is a service of the platform, with a control face beside it; deterministic, with
/// nothing running but the real child processes of privileged starts. One thread.
struct Mac {
    /// `person` must outlive the Mac.
    explicit Mac(Person& person)
        : alert(transcript, person), authorization(transcript, faults, person, diskArbitration) {}
    Mac(const Mac&) = delete;
    Mac& operator=(const Mac&) = delete;
    ~Mac() = default;

    Transcript transcript;
    Faults faults;
    MainLoop mainLoop;
    FileSystem fileSystem;
    common::NotificationCenter notificationCenter;
    common::Bundle bundle;
    Alert alert;
    Application application{transcript};
    DiskArbitration diskArbitration{transcript, faults, mainLoop, fileSystem};
    Authorization authorization;
    FileManager fileManager{transcript, faults, fileSystem, diskArbitration};
    LoginItems loginItems{transcript, faults};
    common::Menu statusMenu;
    ScriptRunner scriptRunner{transcript, faults};
    StatusItem statusItem{transcript, statusMenu};
    SystemLog systemLog{transcript};
    SystemVersion systemVersion;
    UserDefaults userDefaults{transcript};
    UserNotificationCenter userNotificationCenter{transcript, faults};
    Workspace workspace{transcript};

    /// The services as the core takes them.
    const Platform platform{.alert = alert,
                            .application = application,
                            .authorization = authorization,
                            .bundle = bundle,
                            .diskArbitration = diskArbitration,
                            .fileManager = fileManager,
                            .loginItems = loginItems,
                            .statusMenu = statusMenu,
                            .notificationCenter = notificationCenter,
                            .runLoop = mainLoop,
                            .scriptRunner = scriptRunner,
                            .statusItem = statusItem,
                            .systemLog = systemLog,
                            .systemVersion = systemVersion,
                            .userDefaults = userDefaults,
                            .userNotificationCenter = userNotificationCenter,
                            .workspace = workspace};
};

}  // namespace brisel::platform::simulated
