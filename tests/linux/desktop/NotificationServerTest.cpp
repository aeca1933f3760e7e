// Notifications on the bus: the arguments of Notify, the server's answers and its signals.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/desktop/NotificationServer.h"
#include "platform/headless/Installation.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::desktop {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;
using tests::FakeNotifications;
using tests::turnUntil;

class Notifications : public testing::Test {
  protected:
    std::optional<Error> show(const Notification& notification) {
        std::optional<std::optional<Error>> shown;
        server_.show(notification, [&](auto number, const auto& error) {
            number_ = number;
            shown = error;
        });
        turnUntil([&shown] { return shown.has_value(); });
        return *shown;
    }
    void leave(FakeNotifications& desktop) {
        bool gone = false;
        const auto leaving = server_.onVanished([&gone] { gone = true; });
        desktop.service.vanish();
        turnUntil([&gone] { return gone; });
    }
    /// The call by which a new server with these capabilities gets the notification.
    tests::NotifyCall sent(const Notification& notification,
                           const std::vector<std::string>& capabilities = {}) {
        FakeNotifications desktop(capabilities);
        desktop.numberFrom(7);
        desktop.service.appear();
        EXPECT_FALSE(show(notification).has_value());
        EXPECT_EQ(number_, 7U);
        leave(desktop);
        return desktop.calls().at(0);
    }
    static Notification popUp(const std::string& summary, const std::string& body = "") {
        return {.summary = summary, .body = body};
    }

    tests::TestLoop loop_;
    NotificationServer server_{tests::SessionBus::shared().program()};
    std::uint32_t number_ = 0;
};

TEST_F(Notifications, NameTheApplication) {
    const auto call = sent(popUp("Found", "Go?"));
    EXPECT_EQ(call.program, "Brisel");
    EXPECT_EQ(call.icon, headless::applicationIcon());
    // mako shows no SVG.
    EXPECT_THAT(call.icon, testing::EndsWith("/48x48/apps/org.brisel.Brisel.png"));
    EXPECT_TRUE(std::filesystem::exists(call.icon)) << call.icon;
    EXPECT_EQ(call.summary, "Found");
    EXPECT_EQ(call.body, "Go?");
    EXPECT_EQ(call.replaces, 0U);
    EXPECT_EQ(call.time, 0);
    EXPECT_THAT(call.hints, UnorderedElementsAre(Pair("urgency", "0x01"),
                                                 Pair("desktop-entry", "'org.brisel.Brisel'")));
}

// LXQt's server draws a button for it.
TEST_F(Notifications, HaveNoDefaultActionOnLXQt) {
    auto notification = popUp("Found");
    notification.actions = {{"default", "Brisel"}, {"DO", "Yes, sure!"}};
    FakeNotifications desktop({"actions"});
    for (const char* const name : {"lxqt-notificationd", "mako"}) {
        desktop.service.on("GetServerInformation", [name](const auto& call) {
            call.answer(g_variant_new("(ssss)", name, "", "1", "1.2"));
        });
        desktop.service.appear();
        show(notification);
        leave(desktop);
    }
    EXPECT_THAT(desktop.calls().front().actions, ElementsAre("DO", "Yes, sure!"));
    EXPECT_THAT(desktop.calls().back().actions,
                ElementsAre("default", "Brisel", "DO", "Yes, sure!"));
}

TEST_F(Notifications, WithALifetimeGoByThemselves) {
    auto notification = popUp("Done");
    notification.lifetime = std::chrono::seconds(8);
    const auto call = sent(notification);
    EXPECT_EQ(call.time, 8000);
    EXPECT_THAT(call.hints, testing::Contains(Pair("transient", "true")));
}

// This includes the first notifications, and those of a server that replaces another.
TEST_F(Notifications, RequestASoundOnlyFromAServerWithSound) {
    auto notification = popUp("Found");
    notification.soundName = "device-added";
    EXPECT_THAT(sent(notification, {"sound"}).hints,
                testing::Contains(Pair("sound-name", "'device-added'")));
    EXPECT_FALSE(sent(notification, {"actions"}).hints.contains("sound-name"));
}

TEST_F(Notifications, EscapeTheBodyOnlyForAServerWithMarkup) {
    const auto notification = popUp("<b>A&B</b>", "<b>A&B</b>");
    const auto escaped = sent(notification, {"body-markup"});
    EXPECT_EQ(escaped.body, "&lt;b&gt;A&amp;B&lt;/b&gt;");
    EXPECT_EQ(escaped.summary, "<b>A&B</b>");
    EXPECT_EQ(sent(notification, {"body"}).body, "<b>A&B</b>");
}

TEST_F(Notifications, OfOutsideTextsAreHarmless) {
    auto notification = popUp("a\x1b[2J\xff",
                              "b\xe2\x80\xae"
                              "c\n");
    notification.actions = {{"DO", "Yes, sure!"}, {"NOT", "No,\nthanks."}};
    const auto call = sent(notification, {"actions"});
    EXPECT_EQ(call.summary, "a^[[2J\xef\xbf\xbd");
    EXPECT_EQ(call.body, "bc^J");
    EXPECT_THAT(call.actions, ElementsAre("DO", "Yes, sure!", "NOT", "No,^Jthanks."));
}

TEST_F(Notifications, ThatAreCriticalAreSentBeforeReturning) {
    const tests::BusyNotifications desktop({"body-markup"});
    server_.showCritical("Bad", "<Very>");
    const auto calls = desktop.calls();
    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls.front().summary, "Bad");
    EXPECT_EQ(calls.front().body, "&lt;Very&gt;");
    EXPECT_THAT(calls.front().hints, testing::Contains(Pair("urgency", "0x02")));
}

TEST_F(Notifications, FailWithoutAServerAndDoNotWaitForIt) {
    const auto error = show(popUp("Found"));
    ASSERT_TRUE(error.has_value());
    EXPECT_THAT(error->localizedDescription, HasSubstr("org.freedesktop.Notifications"));
    const auto start = std::chrono::steady_clock::now();
    server_.showCritical("Bad", "Very");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

// The second error is that of a GIO server whose own operation was cancelled.
TEST_F(Notifications, FailWithTheServersError) {
    FakeNotifications desktop({});
    desktop.service.appear();
    for (const char* const name :
         {"org.freedesktop.Notifications.Error.ExcessNotificationGeneration",
          "org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19"}) {
        desktop.service.on("Notify", [name](const auto& call) { call.refuse(name); });
        const auto error = show(popUp("Found"));
        ASSERT_TRUE(error.has_value()) << name;
        EXPECT_THAT(error->localizedDescription, HasSubstr("It is refused."));
    }
}

TEST_F(Notifications, FailWithAnAnswerOfAnotherType) {
    FakeNotifications desktop({});
    desktop.service.appear();
    for (const char* const answer : {"('1',)", "()", "(1, 2)", "(uint64 1,)"}) {
        desktop.service.on(
            "Notify", [answer](const auto& call) { call.answer(g_variant_new_parsed(answer)); });
        EXPECT_TRUE(show(popUp("Found")).has_value()) << answer;
    }
}

TEST_F(Notifications, WaitForASlowServerUntilItAnswersOrEnds) {
    auto desktop = std::make_unique<FakeNotifications>(std::vector<std::string>{});
    std::optional<tests::BusCall> waiting;
    desktop->service.on("Notify", [&](const auto& call) { waiting = call; });
    desktop->service.appear();
    std::optional<Error> failure;
    const auto begin = [&] {
        waiting.reset();
        server_.show(popUp("Found"), [&](auto number, const auto& error) {
            number_ = number;
            failure = error;
        });
        turnUntil([&waiting] { return waiting.has_value(); });
    };
    begin();
    EXPECT_EQ(number_, 0U);
    waiting->answer(g_variant_new("(u)", 4));
    turnUntil([this] { return number_ == 4; });
    begin();
    waiting->drop();
    desktop.reset();
    turnUntil([&failure] { return failure.has_value(); });
}

TEST_F(Notifications, IgnoreCapabilitiesOfAnotherType) {
    FakeNotifications desktop({});
    desktop.service.on("GetCapabilities",
                       [](const auto& call) { call.answer(g_variant_new_parsed("('sound',)")); });
    desktop.service.appear();
    auto notification = popUp("Found");
    notification.soundName = "device-added";
    EXPECT_FALSE(show(notification).has_value());
    EXPECT_FALSE(desktop.calls().front().hints.contains("sound-name"));
}

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

TEST_F(NotificationSignals, OfOtherTypesAndFromOtherSendersAreIgnored) {
    desktop_.service.emit("ActionInvoked", g_variant_new("(s)", "DO"));
    desktop_.service.emit("ActionInvoked", nullptr);
    desktop_.service.emit("NotificationClosed", g_variant_new("(u)", 3));
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
