// The "Start at Login" menu item.
// SPDX-License-Identifier: MIT
#include "platform/Bundle.h"
#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

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

TEST_F(StartAtLogin, IsOffAgainAfterTwoChoices) {
    choose("Start at Login");
    forgetLines();
    choose("Start at Login");
    EXPECT_THAT(newLines(), ElementsAre("login-item: org.brisel.BriselHelper off",
                                        "default: shouldStartAtLogin = NO"));
    EXPECT_FALSE(checked());
}

TEST_F(StartAtLogin, ShowsALiteralPlaceholderOnFailure) {
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
    EXPECT_THAT(newLines(), Contains("text: Couldn't %@ Helper App to launch at login item list."));
    EXPECT_TRUE(checked());
    EXPECT_THAT(mac.userDefaults.stored(),
                ElementsAre("shouldStartAtLogin = YES", "showDisclaimer = NO"));
}

/// Returns each key as its text and records the keys.
class NotedTexts final : public platform::Bundle {
  public:
    mutable std::vector<std::string> keys;
    std::string localizedString(std::string_view key) const override {
        return keys.emplace_back(key);
    }
    bool hasImage(const std::string& /*name*/) const override { return true; }
};

TEST_F(StartAtLogin, LooksUpTheActionOfAFailureButDoesNotShowIt) {
    NotedTexts texts;
    AppDelegate delegate(platformWith(mac.platform, {.bundle = &texts}));
    refuse();
    delegate.toggleStartAtLogin();
    EXPECT_THAT(texts.keys,
                ElementsAre("remove", "An error ocurred",
                            "Couldn't %@ Helper App to launch at login item list.", "OK"));

    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Accept);
    delegate.toggleStartAtLogin();
    texts.keys.clear();
    refuse();
    delegate.toggleStartAtLogin();
    EXPECT_EQ(texts.keys.at(0), "add");
}

TEST_F(StartAtLogin, MayBeTriedAgain) {
    refuse();
    choose("Start at Login");
    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Accept);
    choose("Start at Login");
    EXPECT_TRUE(checked());
}

TEST_F(StartAtLogin, NamesTheLoginHelper) {
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
