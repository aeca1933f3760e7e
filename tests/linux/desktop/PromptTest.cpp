// Prompts: one pop-up for one identifier, and one response to each.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/UserNotificationCenter.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::platform::linux {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakeNotifications;
using tests::turnUntil;

constexpr std::uint32_t Expired = 1;
constexpr std::uint32_t Dismissed = 2;
constexpr std::uint32_t ClosedByCall = 3;

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
        turnUntil([&] { return results_.size() >= count; });
    }
    void prompt(const std::string& identifier, const std::string& volume) {
        add(request(identifier, volume));
        waitForResults(results_.size() + 1);
    }
    /// What was sent to the program before has arrived after this.
    void catchUp() { static_cast<void>(observer_.newSignals()); }

    tests::TestLoop loop_;
    tests::BusCaller observer_{"org.freedesktop.DBus", "/", "org.freedesktop.DBus"};
    NotificationServer server_{tests::SessionBus::shared().program()};
    UserNotificationCenter center_{server_};
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

    /// Replaces the server by one that numbers from 1 on again.
    void restartServer(FakeNotifications& other) {
        bool gone = false;
        const auto leaving = server_.onVanished([&gone] { gone = true; });
        desktop_.service.vanish();
        turnUntil([&gone] { return gone; });
        other.service.appear();
    }

    FakeNotifications desktop_{{"sound"}};
};

TEST_F(ShownPrompts, HaveTheTextsAndTheButtonsOfTheirCategoryAndASound) {
    prompt("mount", "Data");
    ASSERT_EQ(desktop_.calls().size(), 1U);
    const auto& call = desktop_.calls().front();
    EXPECT_EQ(call.summary, "Data detected");
    EXPECT_EQ(call.body, "Go?");
    EXPECT_THAT(call.actions, ElementsAre("DO", "Yes, sure!", "NOT", "No, thanks."));
    EXPECT_TRUE(call.hints.contains("sound-name"));
    EXPECT_THAT(results_, ElementsAre("shown"));
}

TEST_F(ShownPrompts, AreSilentAndWithoutButtonsWhenAskedTo) {
    add({.identifier = "mount",
         .title = "Data",
         .body = "",
         .soundName = "",
         .categoryIdentifier = "",
         .userInfo = {}});
    waitForResults(1);
    EXPECT_THAT(desktop_.calls().front().actions, IsEmpty());
    EXPECT_FALSE(desktop_.calls().front().hints.contains("sound-name"));
}

TEST_F(ShownPrompts, ReplaceTheOneOfTheSameIdentifier) {
    desktop_.numberFrom(5);
    prompt("mount", "Data");
    prompt("mount", "More");
    prompt("other", "Data");
    ASSERT_EQ(desktop_.calls().size(), 3U);
    EXPECT_EQ(desktop_.calls()[0].replaces, 0U);
    EXPECT_EQ(desktop_.calls()[1].replaces, 5U);
    EXPECT_EQ(desktop_.calls()[2].replaces, 0U);
}

TEST_F(ShownPrompts, ThatComeTogetherReplaceEachOtherInOrder) {
    desktop_.numberFrom(5);
    for (const char* const volume : {"First", "Second", "Third"})
        add(request("mount", volume));
    waitForResults(3);
    ASSERT_EQ(desktop_.calls().size(), 3U);
    EXPECT_EQ(desktop_.calls()[1].replaces, 5U);
    EXPECT_EQ(desktop_.calls()[2].replaces, 5U);
    EXPECT_EQ(desktop_.calls()[2].summary, "Third detected");
    desktop_.invoke(5, "DO");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount DO Third"));
}

// As two sticks at once bring it about: each new one has the menu rebuilt, which asks for both.
TEST_F(ShownPrompts, AskedForAgainBeforeTheyAreThereAreShownOnce) {
    for (const char* const volume : {"First", "First", "Second", "First", "Second"})
        add(request("mount", volume));
    waitForResults(5);
    ASSERT_EQ(desktop_.calls().size(), 2U);
    EXPECT_EQ(desktop_.calls()[0].summary, "First detected");
    EXPECT_EQ(desktop_.calls()[1].summary, "Second detected");
    EXPECT_THAT(results_, Each("shown"));
    prompt("mount", "First");
    EXPECT_EQ(desktop_.calls().size(), 3U);
}

TEST_F(ShownPrompts, AskedForByTheirOwnEndAreShownAgain) {
    center_.addNotificationRequest(request("mount", "Data"), [this](const auto& /*error*/) {
        results_.emplace_back("first");
        add(request("mount", "Data"));
    });
    waitForResults(2);
    EXPECT_THAT(results_, ElementsAre("first", "shown"));
    EXPECT_EQ(desktop_.calls().size(), 2U);
}

TEST_F(ShownPrompts, AskedForByTheEndOfAnotherAreShownOnce) {
    center_.addNotificationRequest(request("mount", "First"), [this](const auto& /*error*/) {
        results_.emplace_back("first");
        add(request("mount", "Second"));
    });
    waitForResults(2);
    catchUp();
    EXPECT_THAT(results_, ElementsAre("first", "shown"));
    EXPECT_EQ(desktop_.calls().size(), 2U);
}

TEST_F(ShownPrompts, GiveTheChosenActionToTheDelegate) {
    prompt("mount", "Data");
    desktop_.invoke(1, "NOT");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount NOT Data"));
}

TEST_F(ShownPrompts, GiveOneResponseEvenIfTheServerAlsoClosesThem) {
    prompt("mount", "Data");
    desktop_.invoke(1, "DO");
    desktop_.close(1, Dismissed);
    desktop_.invoke(0, "DO");
    catchUp();
    EXPECT_THAT(responses_, ElementsAre("mount DO Data"));
}

TEST_F(ShownPrompts, AreNotReplacedOnceTheyHaveBeenAnswered) {
    prompt("mount", "Data");
    desktop_.close(1, Dismissed);
    catchUp();
    prompt("mount", "More");
    EXPECT_EQ(desktop_.calls().back().replaces, 0U);
}

TEST_F(ShownPrompts, IgnoreTheNumbersOfOthers) {
    prompt("mount", "Data");
    desktop_.invoke(2, "DO");
    desktop_.invoke(0, "DO");
    desktop_.close(2, Dismissed);
    catchUp();
    EXPECT_THAT(responses_, IsEmpty());
}

TEST_F(ShownPrompts, TellOfADismissal) {
    prompt("mount", "Data");
    desktop_.close(1, Dismissed);
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_,
                ElementsAre(std::string("mount ") + NotificationDismissActionIdentifier + " Data"));
}

// Some desktops keep what has expired in a list, where it can still be answered.
TEST_F(ShownPrompts, SayNothingWhenTheyExpireButCanStillBeAnswered) {
    prompt("mount", "Data");
    desktop_.close(1, Expired);
    desktop_.close(1, ClosedByCall);
    catchUp();
    EXPECT_THAT(responses_, IsEmpty());
    desktop_.invoke(1, "DO");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount DO Data"));
}

TEST_F(ShownPrompts, AreForgottenWithTheirServer) {
    prompt("mount", "Data");
    FakeNotifications other({});
    restartServer(other);
    // The new server's first pop-up is another program's.
    other.invoke(1, "DO");
    catchUp();
    EXPECT_THAT(responses_, IsEmpty());
    other.numberFrom(2);
    prompt("mount", "More");
    EXPECT_EQ(other.calls().front().replaces, 0U);
    other.invoke(2, "DO");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount DO More"));
}

TEST_F(ShownPrompts, ThatTheServerRefusesLeaveTheEarlierOneAsItWas) {
    prompt("mount", "Data");
    desktop_.service.on("Notify", [](const auto& call) { call.refuse("org.example.Error.No"); });
    prompt("mount", "More");
    EXPECT_THAT(results_, ElementsAre("shown", "failed"));
    desktop_.invoke(1, "DO");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount DO Data"));
}

TEST_F(ShownPrompts, WaitForAServerThatTakesItsTime) {
    std::vector<tests::BusCall> waiting;
    desktop_.service.on("Notify", [&](const auto& call) { waiting.push_back(call); });
    add(request("mount", "First"));
    add(request("mount", "Second"));
    turnUntil([&] { return !waiting.empty(); });
    catchUp();
    ASSERT_EQ(waiting.size(), 1U);
    waiting[0].answer(g_variant_new("(u)", 9));
    turnUntil([&] { return waiting.size() == 2; });
    std::uint32_t replaces = 0;
    g_variant_get_child(waiting[1].arguments(), 1, "u", &replaces);
    EXPECT_EQ(replaces, 9U);
    waiting[1].answer(g_variant_new("(u)", 9));
    waitForResults(2);
}

TEST_F(Prompts, WithoutAServerFailEachByItself) {
    add(request("mount", "First"));
    add(request("mount", "Second"));
    waitForResults(2);
    EXPECT_THAT(results_, ElementsAre("failed", "failed"));
}

TEST_F(Prompts, AreAlwaysAllowed) {
    bool allowed = false;
    center_.requestAuthorization(AuthorizationOptionAlert, [&](bool granted, const auto& error) {
        allowed = granted && !error;
    });
    EXPECT_TRUE(allowed);
}

}  // namespace

}  // namespace brisel::platform::linux
