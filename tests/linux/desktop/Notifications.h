// Fixture of the notification tests.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "platform/desktop/NotificationServer.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::desktop {

class Notifications : public testing::Test {
  protected:
    struct Shown {
        std::uint32_t number = 0;
        std::optional<Error> error;
    };

    Shown show(const Notification& notification) {
        std::optional<Shown> shown;
        server_.show(notification, [&shown](auto number, const auto& error) {
            shown = {.number = number, .error = error};
        });
        tests::turnUntil([&shown] { return shown.has_value(); });
        return *shown;
    }
    void leave(tests::FakeNotifications& desktop) {
        bool gone = false;
        const auto leaving = server_.onVanished([&gone] { gone = true; });
        desktop.service.vanish();
        tests::turnUntil([&gone] { return gone; });
    }
    static Notification popUp(const std::string& summary, const std::string& body = "") {
        return {.summary = summary, .body = body};
    }

    tests::TestLoop loop_;
    NotificationServer server_{tests::SessionBus::shared().program()};
};

}  // namespace brisel::platform::desktop
