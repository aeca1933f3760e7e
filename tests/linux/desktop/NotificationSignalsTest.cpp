// Signals of a notification server: ActionInvoked and NotificationClosed.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/linux/desktop/Notifications.h"

namespace brisel::platform::desktop {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakeNotifications;
using tests::turnUntil;

class NotificationSignals : public Notifications {
  protected:
    NotificationSignals() { desktop_.service.appear(); }
    void catchUp() { show(popUp("Last")); }

    FakeNotifications desktop_{{}};
    std::vector<std::string> heard_;
    Subscription actions_ = server_.onActionInvoked([this](auto number, const auto& key) {
        heard_.push_back(std::to_string(number) + " " + key);
    });
    Subscription closings_ = server_.onClosed([this](auto number, auto reason) {
        heard_.push_back(std::to_string(number) + " closed " + std::to_string(reason));
    });
};

TEST_F(NotificationSignals, AreReported) {
    desktop_.invoke(3, "DO");
    desktop_.close(3, 2);
    turnUntil([this] { return heard_.size() == 2; });
    EXPECT_THAT(heard_, ElementsAre("3 DO", "3 closed 2"));
}

TEST_F(NotificationSignals, OfOtherTypesAreIgnored) {
    desktop_.service.emit("ActionInvoked", g_variant_new("(s)", "DO"));
    desktop_.service.emit("ActionInvoked", nullptr);
    desktop_.service.emit("NotificationClosed", g_variant_new("(u)", 3));
    catchUp();
    EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(NotificationSignals, FromOtherSendersAreIgnored) {
    const FakeNotifications stranger({});
    stranger.invoke(3, "DO");
    g_dbus_connection_flush_sync(stranger.service.bus(), nullptr, nullptr);
    catchUp();
    EXPECT_THAT(heard_, IsEmpty());
}

TEST_F(NotificationSignals, AreNotReportedAfterTheSubscription) {
    actions_.reset();
    desktop_.invoke(3, "DO");
    catchUp();
    EXPECT_THAT(heard_, IsEmpty());
}

}  // namespace

}  // namespace brisel::platform::desktop
