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

TEST_F(ShownPrompts, IgnoreTheNumbersOfOthers) {
    prompt("mount", "Data");
    desktop_.invoke(2, "DO");
    desktop_.invoke(0, "DO");
    desktop_.close(2, Dismissed);
    catchUp();
    EXPECT_THAT(responses_, IsEmpty());
}

TEST_F(ShownPrompts, ReportADismissal) {
    prompt("mount", "Data");
    desktop_.close(1, Dismissed);
    turnUntil([this] { return !responses_.empty(); });
    EXPECT_THAT(responses_,
                ElementsAre(std::string("mount ") + NotificationDismissActionIdentifier + " Data"));
}

// Some desktops keep expired notifications in a list where they can still be answered.
TEST_F(ShownPrompts, ReportNothingWhenTheyExpireButCanStillBeAnswered) {
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
