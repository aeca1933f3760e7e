// Fixture of the notification tests: one request and the answers to it.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <thread>

#include "platform/macos/UserNotificationCenter.h"
#import "tests/macos/adapters/AdapterTest.h"
#import "tests/macos/frameworks/UserNotifications.h"

namespace brisel::tests::macos {

class Notifications : public AdapterTest {
  protected:
    platform::macos::UserNotificationCenter adapter;
    const platform::NotificationRequest request{.identifier = "disk4s1",
                                                .title = "Größe 💾 detected",
                                                .body = "%@?",
                                                .soundName = "Hero",
                                                .categoryIdentifier = "REMOUNT",
                                                .userInfo = {{"volume", "disk4s1"}},
                                                .delay = std::chrono::milliseconds(200)};
    int answers = 0;
    std::optional<platform::Error> error;
    bool granted = false;
    std::thread::id thread;

    void add() {
        adapter.addNotificationRequest(request, [this](const auto& failure) {
            ++answers;
            error = failure;
            thread = std::this_thread::get_id();
        });
    }
    void ask(unsigned options) {
        adapter.requestAuthorization(options, [this](bool answer, const auto& failure) {
            ++answers;
            granted = answer;
            error = failure;
            thread = std::this_thread::get_id();
        });
    }
};

}  // namespace brisel::tests::macos
