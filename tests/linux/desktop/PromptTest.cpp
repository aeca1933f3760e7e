// Prompts: one notification for each identifier.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/linux/desktop/Prompts.h"

namespace brisel::platform::desktop {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using tests::turnUntil;

TEST_F(ShownPrompts, AreSilentAndWithoutActionsWhenAskedTo) {
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
    EXPECT_THAT(replaced(), ElementsAre(0, 5, 0));
}

TEST_F(ShownPrompts, ThatComeTogetherReplaceEachOtherInOrder) {
    desktop_.numberFrom(5);
    for (const char* const volume : {"First", "Second", "Third"})
        add(request("mount", volume));
    waitForResults(3);
    EXPECT_THAT(replaced(), ElementsAre(0, 5, 5));
    EXPECT_EQ(desktop_.calls().back().summary, "Third detected");
    desktop_.invoke(5, "DO");
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_, ElementsAre("mount DO Third"));
}

// Two sticks at once cause this: each rebuilds the menu, which prompts for both.
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

TEST_F(ShownPrompts, AskedForByTheEndOfOneAreShownOnceMore) {
    for (const std::string second : {"Data", "Other"}) {
        results_.clear();
        center_.addNotificationRequest(request(second, "Data"), [&](const auto& /*error*/) {
            results_.emplace_back("first");
            add(request(second, second));
        });
        waitForResults(2);
        catchUp();
        EXPECT_THAT(results_, ElementsAre("first", "shown"));
    }
    EXPECT_EQ(desktop_.calls().size(), 4U);
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

TEST_F(ShownPrompts, ThatAreMootBeforeTheyAreShownAreWithdrawn) {
    add(request("mount", "Data"));
    center_.setMoot([](const auto& /*userInfo*/) { return true; });
    center_.withdrawMoot();
    turnUntil([this] { return !desktop_.withdrawn().empty(); });
    EXPECT_THAT(results_, ElementsAre("shown"));
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

}  // namespace brisel::platform::desktop
