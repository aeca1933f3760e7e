// A platform with some of its services replaced.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

namespace brisel::tests {

/// Replacement services; null keeps the original.
struct Replacements {
    platform::Application* application = nullptr;
    platform::Authorization* authorization = nullptr;
    platform::Bundle* bundle = nullptr;
    platform::DiskArbitration* diskArbitration = nullptr;
    platform::NotificationCenter* notificationCenter = nullptr;
    platform::StatusItem* statusItem = nullptr;
    platform::UserNotificationCenter* userNotificationCenter = nullptr;
};

template <typename Service>
Service& chosen(Service* replacement, Service& original) {
    return replacement != nullptr ? *replacement : original;
}

inline platform::Platform platformWith(const platform::Platform& base,
                                       const Replacements& replacements) {
    return {.alert = base.alert,
            .application = chosen(replacements.application, base.application),
            .authorization = chosen(replacements.authorization, base.authorization),
            .bundle = chosen(replacements.bundle, base.bundle),
            .diskArbitration = chosen(replacements.diskArbitration, base.diskArbitration),
            .fileManager = base.fileManager,
            .loginItems = base.loginItems,
            .statusMenu = base.statusMenu,
            .notificationCenter = chosen(replacements.notificationCenter, base.notificationCenter),
            .runLoop = base.runLoop,
            .scriptRunner = base.scriptRunner,
            .statusItem = chosen(replacements.statusItem, base.statusItem),
            .systemLog = base.systemLog,
            .systemVersion = base.systemVersion,
            .userDefaults = base.userDefaults,
            .userNotificationCenter =
                chosen(replacements.userNotificationCenter, base.userNotificationCenter),
            .workspace = base.workspace};
}

}  // namespace brisel::tests
