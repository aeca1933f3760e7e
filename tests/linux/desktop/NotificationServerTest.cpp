// Notifications on the bus: the arguments of Notify, and the server's answers.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <filesystem>

#include "platform/headless/Installation.h"
#include "tests/linux/desktop/Notifications.h"

namespace brisel::platform::desktop {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;
using testing::UnorderedElementsAre;
using tests::FakeNotifications;
using tests::turnUntil;

TEST_F(Notifications, NameTheApplication) {
    FakeNotifications desktop({});
    desktop.service.appear();
    desktop.numberFrom(7);
    const auto shown = show(popUp("Found", "Go?"));
    EXPECT_EQ(shown.number, 7U);
    EXPECT_FALSE(shown.error.has_value());
    ASSERT_EQ(desktop.calls().size(), 1U);
    const auto& call = desktop.calls().front();
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

TEST_F(Notifications, HaveTheirButtonsInOrder) {
    FakeNotifications desktop({"actions"});
    desktop.service.appear();
    auto notification = popUp("Found");
    notification.actions = {{"DO", "Yes, sure!"}, {"NOT", "No,\nthanks."}};
    show(notification);
    EXPECT_THAT(desktop.calls().front().actions,
                ElementsAre("DO", "Yes, sure!", "NOT", "No,^Jthanks."));
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
    FakeNotifications desktop({});
    desktop.service.appear();
    auto notification = popUp("Done");
    notification.lifetime = std::chrono::seconds(8);
    show(notification);
    EXPECT_EQ(desktop.calls().front().time, 8000);
    EXPECT_THAT(desktop.calls().front().hints, testing::Contains(Pair("transient", "true")));
}

// This includes the first notifications, and those of a server that replaces another.
TEST_F(Notifications, RequestASoundOnlyFromAServerWithSound) {
    auto notification = popUp("Found");
    notification.soundName = "device-added";
    FakeNotifications loud({"sound"});
    loud.service.appear();
    show(notification);
    EXPECT_THAT(loud.calls().front().hints,
                testing::Contains(Pair("sound-name", "'device-added'")));
    leave(loud);
    FakeNotifications mute({"actions"});
    mute.service.appear();
    show(notification);
    EXPECT_FALSE(mute.calls().front().hints.contains("sound-name"));
}

TEST_F(Notifications, EscapeTheBodyOnlyForAServerWithMarkup) {
    const auto notification = popUp("<b>A&B</b>", "<b>A&B</b>");
    FakeNotifications reader({"body-markup"});
    reader.service.appear();
    show(notification);
    EXPECT_EQ(reader.calls().front().body, "&lt;b&gt;A&amp;B&lt;/b&gt;");
    EXPECT_EQ(reader.calls().front().summary, "<b>A&B</b>");
    leave(reader);
    FakeNotifications plain({"body"});
    plain.service.appear();
    show(notification);
    EXPECT_EQ(plain.calls().front().body, "<b>A&B</b>");
}

TEST_F(Notifications, OfOutsideTextsAreHarmless) {
    FakeNotifications desktop({});
    desktop.service.appear();
    show(popUp("a\x1b[2J\xff",
               "b\xe2\x80\xae"
               "c\n"));
    EXPECT_EQ(desktop.calls().front().summary, "a^[[2J\xef\xbf\xbd");
    EXPECT_EQ(desktop.calls().front().body, "bc^J");
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

TEST_F(Notifications, ThatAreCriticalDoNotWaitWithoutAServer) {
    const auto start = std::chrono::steady_clock::now();
    server_.showCritical("Bad", "Very");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
}

TEST_F(Notifications, FailWithoutAServer) {
    const auto shown = show(popUp("Found"));
    ASSERT_TRUE(shown.error.has_value());
    EXPECT_THAT(shown.error->localizedDescription, HasSubstr("org.freedesktop.Notifications"));
}

TEST_F(Notifications, FailWithTheServersError) {
    FakeNotifications desktop({});
    desktop.service.on("Notify", [](const auto& call) {
        call.refuse("org.freedesktop.Notifications.Error.ExcessNotificationGeneration");
    });
    desktop.service.appear();
    const auto shown = show(popUp("Found"));
    ASSERT_TRUE(shown.error.has_value());
    EXPECT_THAT(shown.error->localizedDescription, HasSubstr("It is refused."));
}

TEST_F(Notifications, FailWhenTheServerCancelsThem) {
    FakeNotifications desktop({});
    // The error of a GIO server whose own operation was cancelled.
    desktop.service.on("Notify", [](const auto& call) {
        call.refuse("org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19");
    });
    desktop.service.appear();
    EXPECT_TRUE(show(popUp("Found")).error.has_value());
}

TEST_F(Notifications, FailWithAnAnswerOfAnotherType) {
    FakeNotifications desktop({});
    desktop.service.appear();
    for (const char* const answer : {"('1',)", "()", "(1, 2)", "(uint64 1,)"}) {
        desktop.service.on(
            "Notify", [answer](const auto& call) { call.answer(g_variant_new_parsed(answer)); });
        EXPECT_TRUE(show(popUp("Found")).error.has_value()) << answer;
    }
}

TEST_F(Notifications, FailWhenTheServerEndsBeforeItsAnswer) {
    auto desktop = std::make_unique<FakeNotifications>(std::vector<std::string>{});
    std::optional<tests::BusCall> waiting;
    desktop->service.on("Notify", [&](const auto& call) { waiting = call; });
    desktop->service.appear();
    std::optional<Error> failure;
    server_.show(popUp("Found"), [&failure](auto, const auto& error) { failure = error; });
    turnUntil([&waiting] { return waiting.has_value(); });
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
    EXPECT_FALSE(show(notification).error.has_value());
    EXPECT_FALSE(desktop.calls().front().hints.contains("sound-name"));
}

TEST_F(Notifications, WaitForASlowServer) {
    FakeNotifications desktop({});
    std::optional<tests::BusCall> waiting;
    desktop.service.on("Notify", [&](const auto& call) { waiting = call; });
    desktop.service.appear();
    std::optional<std::uint32_t> number;
    server_.show(popUp("Found"), [&number](auto shown, const auto&) { number = shown; });
    turnUntil([&waiting] { return waiting.has_value(); });
    EXPECT_FALSE(number.has_value());
    waiting->answer(g_variant_new("(u)", 4));
    turnUntil([&number] { return number.has_value(); });
    EXPECT_EQ(number, 4U);
}

}  // namespace

}  // namespace brisel::platform::desktop
