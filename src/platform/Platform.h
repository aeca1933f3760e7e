// All that the program asks of the operating system, in one place.
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

/// One service each; whoever builds it keeps them alive as long as the core runs.
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

/// Makes `platform` the one that NTFSVolumeManager::sharedInstance is built on. To be called once
/// before the core starts.
void install(const Platform& platform);

/// The installed platform; one must have been installed.
const Platform& installed();

}  // namespace brisel::platform
