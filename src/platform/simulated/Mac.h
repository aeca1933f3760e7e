// A Mac in memory: the services of a platform, and its test controls.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/common/Bundle.h"
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
#include "platform/simulated/Menu.h"
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

/// Each service is a member with its test controls. Deterministic and single-threaded; a privileged
/// start runs a real child process.
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
    MainLoop& runLoop = mainLoop;
    FileSystem fileSystem;
    common::NotificationCenter notificationCenter;
    common::Bundle bundle;
    Alert alert;
    Application application{transcript};
    DiskArbitration diskArbitration{transcript, faults, mainLoop, fileSystem};
    Authorization authorization;
    FileManager fileManager{transcript, faults, fileSystem, diskArbitration};
    LoginItems loginItems{transcript, faults};
    Menu statusMenu;
    ScriptRunner scriptRunner{transcript, faults};
    StatusItem statusItem{transcript, statusMenu};
    SystemLog systemLog{transcript};
    SystemVersion systemVersion;
    UserDefaults userDefaults{transcript};
    UserNotificationCenter userNotificationCenter{transcript, faults};
    Workspace workspace{transcript};

    const Platform platform = platformOf(*this);
};

}  // namespace brisel::platform::simulated
