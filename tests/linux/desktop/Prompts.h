// Fixtures of the prompt tests, with and without a notification server.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/desktop/UserNotificationCenter.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::desktop {

inline constexpr std::uint32_t Expired = 1;
inline constexpr std::uint32_t Dismissed = 2;
inline constexpr std::uint32_t ClosedByCall = 3;
inline constexpr std::uint32_t Undefined = 4;

class Prompts : public testing::Test {
  protected:
    using Handler = UserNotificationCenter::AddHandler;

    Prompts() {
        center_.setNotificationCategories(
            {{.identifier = "OTHER", .actions = {{"X", "Wrong"}}},
             {.identifier = "MOUNT", .actions = {{"DO", "Yes, sure!"}, {"NOT", "No, thanks."}}}});
    }
    static NotificationRequest request(const std::string& identifier, const std::string& volume) {
        return {.identifier = identifier,
                .title = volume + " detected",
                .body = "Go?",
                .soundName = "Hero",
                .categoryIdentifier = "MOUNT",
                .userInfo = {{"volume", volume}}};
    }
    void add(const NotificationRequest& request) {
        center_.addNotificationRequest(
            request, [this](const auto& error) { results_.push_back(error ? "failed" : "shown"); });
    }
    void waitForResults(std::size_t count) {
        tests::turnUntil([&] { return results_.size() >= count; });
    }
    void prompt(const std::string& identifier, const std::string& volume) {
        add(request(identifier, volume));
        waitForResults(results_.size() + 1);
    }
    /// Waits until the program has handled all messages sent to it.
    void catchUp() { static_cast<void>(observer_.newSignals()); }

    tests::TestLoop loop_;
    tests::BusCaller observer_{"org.freedesktop.DBus", "/", "org.freedesktop.DBus"};
    NotificationServer server_{tests::SessionBus::shared().program()};
    ActivationToken activationToken_;
    UserNotificationCenter center_{server_, activationToken_};
    std::vector<std::string> results_;
    std::vector<std::string> responses_;
    Subscription delegate_ = center_.setDelegate([this](const auto& response, const auto& done) {
        responses_.push_back(response.requestIdentifier + " " + response.actionIdentifier + " " +
                             response.userInfo.at("volume"));
        done();
    });
};

class ShownPrompts : public Prompts {
  protected:
    ShownPrompts() { desktop_.service.appear(); }

    /// The number that each notification replaces; 0 for none.
    [[nodiscard]] std::vector<std::uint32_t> replaced() const {
        std::vector<std::uint32_t> numbers;
        for (const auto& call : desktop_.calls())
            numbers.push_back(call.replaces);
        return numbers;
    }

    tests::FakeNotifications desktop_{{"sound"}};
};

}  // namespace brisel::platform::desktop
