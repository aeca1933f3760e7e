// Responses to prompts: one for each, and none for other programs' notifications.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "tests/linux/desktop/Prompts.h"

namespace brisel::platform::desktop {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakeNotifications;
using tests::turnUntil;

TEST_F(ShownPrompts, GiveOneResponseEvenIfTheServerAlsoClosesThem) {
    prompt("mount", "Data");
    desktop_.invoke(1, "DO");
    desktop_.close(1, Dismissed);
    desktop_.invoke(0, "DO");
    catchUp();
    EXPECT_THAT(responses_, ElementsAre("mount DO Data"));
}

TEST_F(ShownPrompts, IgnoreTheNumbersOfOthers) {
    prompt("mount", "Data");
    desktop_.invoke(2, "DO");
    desktop_.invoke(0, "DO");
    desktop_.close(2, Dismissed);
    catchUp();
    EXPECT_THAT(responses_, IsEmpty());
}

TEST_F(ShownPrompts, ReportADismissalAndAreNotReplacedAfterIt) {
    prompt("mount", "Data");
    desktop_.close(1, Dismissed);
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_,
                ElementsAre(std::string("mount ") + NotificationDismissActionIdentifier + " Data"));
    prompt("mount", "More");
    EXPECT_THAT(replaced(), ElementsAre(0, 0));
}

// A closed notification's number is invalid: Plasma would change its history without a pop-up.
TEST_F(ShownPrompts, AreForgottenOnceClosedForAnyReason) {
    std::uint32_t number = 0;
    for (const auto reason : {Expired, ClosedByCall, Undefined}) {
        prompt("mount", "Data");
        EXPECT_EQ(desktop_.calls().back().replaces, 0U) << reason;
        desktop_.close(++number, reason);
        desktop_.invoke(number, "DO");
        catchUp();
    }
    EXPECT_THAT(responses_, IsEmpty());
}

// mako leaves a notification on screen after its action.
TEST_F(ShownPrompts, GiveTheChosenActionToTheDelegateAndAreWithdrawn) {
    prompt("mount", "Data");
    desktop_.invoke(1, "NOT");
    prompt("other", "More");
    desktop_.invoke(2, "default");
    turnUntil([this] { return desktop_.withdrawn().size() == 2; });
    EXPECT_THAT(desktop_.withdrawn(), ElementsAre(1, 2));
    EXPECT_THAT(responses_,
                ElementsAre("mount NOT Data",
                            std::string("other ") + NotificationDefaultActionIdentifier + " More"));
}

// Plasma sends every program the tokens of all.
TEST_F(ShownPrompts, BringTheTokenOfTheirOwnClick) {
    prompt("mount", "Data");
    desktop_.giveToken(1, "ours");
    desktop_.giveToken(2, "of another program");
    catchUp();
    EXPECT_EQ(activationToken_.take(), "ours");
}

TEST_F(ShownPrompts, AreForgottenWithTheirServer) {
    prompt("mount", "Data");
    FakeNotifications other({});
    bool gone = false;
    const auto leaving = server_.onVanished([&gone] { gone = true; });
    desktop_.service.vanish();
    turnUntil([&gone] { return gone; });
    other.service.appear();
    // The new server's first notification belongs to another program.
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

}  // namespace

}  // namespace brisel::platform::desktop
