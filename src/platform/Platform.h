// The services of a platform that the core runs on.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform {

class Alert;
class Application;
class Authorization;
class Bundle;
class DiskArbitration;
class FileManager;
class LoginItems;
class Menu;
class NotificationCenter;
class RunLoop;
class ScriptRunner;
class StatusItem;
class SystemLog;
class SystemVersion;
class UserDefaults;
class UserNotificationCenter;
class Workspace;

/// References to the services, which must outlive the core.
struct Platform {
    Alert& alert;
    Application& application;
    Authorization& authorization;
    Bundle& bundle;
    DiskArbitration& diskArbitration;
    FileManager& fileManager;
    LoginItems& loginItems;
    Menu& statusMenu;
    NotificationCenter& notificationCenter;
    RunLoop& runLoop;
    ScriptRunner& scriptRunner;
    StatusItem& statusItem;
    SystemLog& systemLog;
    SystemVersion& systemVersion;
    UserDefaults& userDefaults;
    UserNotificationCenter& userNotificationCenter;
    Workspace& workspace;
};

/// The services of a struct that has each of them as a member of that name. The struct must outlive
/// the result.
template <typename Services>
Platform platformOf(Services& services) {
    return {.alert = services.alert,
            .application = services.application,
            .authorization = services.authorization,
            .bundle = services.bundle,
            .diskArbitration = services.diskArbitration,
            .fileManager = services.fileManager,
            .loginItems = services.loginItems,
            .statusMenu = services.statusMenu,
            .notificationCenter = services.notificationCenter,
            .runLoop = services.runLoop,
            .scriptRunner = services.scriptRunner,
            .statusItem = services.statusItem,
            .systemLog = services.systemLog,
            .systemVersion = services.systemVersion,
            .userDefaults = services.userDefaults,
            .userNotificationCenter = services.userNotificationCenter,
            .workspace = services.workspace};
}

/// Sets the platform of `NTFSVolumeManager::sharedInstance`. Call once, before the core starts.
void install(const Platform& platform);

/// The installed platform. Requires an earlier `install`.
const Platform& installed();

}  // namespace brisel::platform
