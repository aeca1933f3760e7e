// The start-at-login check item.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

class StartAtLogin : public RunningProgram {
  protected:
    bool checked() const { return mac.statusMenu.items().at(2).checked; }
    void refuse() { mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Refuse); }
};

TEST_F(StartAtLogin, RegistersTheHelperThenRemembersIt) {
    choose("Start at Login");
    EXPECT_THAT(newLines(), ElementsAre("login-item: org.brisel.BriselHelper on",
                                        "default: shouldStartAtLogin = YES"));
    EXPECT_TRUE(checked());
}

TEST_F(StartAtLogin, IsBackWhereItStartedAfterTwoChoices) {
    choose("Start at Login");
    forgetLines();
    choose("Start at Login");
    EXPECT_THAT(newLines(), ElementsAre("login-item: org.brisel.BriselHelper off",
                                        "default: shouldStartAtLogin = NO"));
    EXPECT_FALSE(checked());
}

TEST_F(StartAtLogin, ShowsALiteralPlaceholderWhereItIsRefused) {
    refuse();
    choose("Start at Login");
    EXPECT_THAT(
        newLines(),
        ElementsAre("login-item: org.brisel.BriselHelper on", "alert: An error ocurred",
                    "text: Couldn't %@ Helper App to launch at login item list.", "buttons: OK"));
    ASSERT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_THAT(person.alertsSeen[0].buttons, ElementsAre("OK"));
    EXPECT_FALSE(checked());
    EXPECT_THAT(mac.userDefaults.stored(), ElementsAre("showDisclaimer = NO"));
}

TEST_F(StartAtLogin, KeepsTheCheckMarkWhereItsRemovalIsRefused) {
    choose("Start at Login");
    refuse();
    forgetLines();
    choose("Start at Login");
    EXPECT_THAT(newLines(),
                testing::Contains("text: Couldn't %@ Helper App to launch at login item list."));
    EXPECT_TRUE(checked());
    EXPECT_THAT(mac.userDefaults.stored(),
                ElementsAre("shouldStartAtLogin = YES", "showDisclaimer = NO"));
}

TEST_F(StartAtLogin, MayBeTriedAgain) {
    refuse();
    choose("Start at Login");
    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Accept);
    choose("Start at Login");
    EXPECT_TRUE(checked());
}

TEST_F(StartAtLogin, NamesAHelperOfTheRightName) {
    EXPECT_THAT(std::string(LoginHelperIdentifier), EndsWith(".BriselHelper"));
}

TEST(StoredStartAtLogin, IsRemovedByTheFirstChoice) {
    SimulatedProgram brisel;
    brisel.mac.userDefaults.store("shouldStartAtLogin", true);
    brisel.start();
    brisel.forgetLines();
    brisel.choose("Start at Login");
    EXPECT_THAT(brisel.newLines(), ElementsAre("login-item: org.brisel.BriselHelper off",
                                               "default: shouldStartAtLogin = NO"));
}

}  // namespace
}  // namespace brisel::tests
