// The simulated services other than disks and folders.
// SPDX-License-Identifier: MIT
#include <sys/wait.h>

#include <array>

#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {
namespace {

class Simulated : public testing::Test, public SimulatedProgram {};

class Transcript : public Simulated {};

TEST(TheSimulatedMenu, TellsOnceThatItWasRebuilt) {
    platform::simulated::Menu menu;
    EXPECT_FALSE(menu.takeRebuilt());
    menu.insertItem({}, 0);
    EXPECT_TRUE(menu.takeRebuilt());
    EXPECT_FALSE(menu.takeRebuilt());
    menu.removeItemsWithTags(std::array{5});
    EXPECT_TRUE(menu.takeRebuilt());
}

TEST_F(Transcript, EscapesLineBreaksAndNothingElse) {
    mac.transcript.write("a\nb\\n\t\"");
    EXPECT_THAT(newLines(), ElementsAre("a\\nb\\n\t\""));
}

TEST_F(Transcript, IsReportedAsItIsWritten) {
    std::vector<std::string> heard;
    mac.transcript.setListener([&](const std::string& line) { heard.push_back(line); });
    mac.transcript.record("x %@", "y");
    mac.transcript.keepNothing();
    mac.transcript.write("z");
    EXPECT_THAT(heard, ElementsAre("x y", "z"));
    EXPECT_THAT(mac.transcript.lines(), ElementsAre("x y"));
}

class Alert : public Simulated {};

TEST_F(Alert, HasADefaultButton) {
    EXPECT_EQ(mac.alert.runModal({.messageText = "M", .informativeText = "I", .buttons = {}}),
              1000);
    EXPECT_THAT(newLines(), ElementsAre("alert: M", "text: I", "buttons: OK"));
}

TEST_F(Alert, AnswersWithTheButtonPressed) {
    person.whenAlertShows = [](const auto&) { return 1; };
    EXPECT_EQ(
        mac.alert.runModal({.messageText = "M", .informativeText = "a\nb", .buttons = {"A", "B"}}),
        1001);
    EXPECT_THAT(newLines(), ElementsAre("alert: M", "text: a\\nb", "buttons: A | B"));
}

class StatusItem : public Simulated {};

TEST_F(StatusItem, ShowsTheMenuOnlyWhereItWasRebuilt) {
    platform::MenuItem item;
    item.title = "Item";
    item.checked = true;
    mac.statusMenu.insertItem(item, 0);
    mac.statusItem.setImage("image");
    mac.statusItem.setImage(std::nullopt);
    EXPECT_THAT(newLines(), ElementsAre("menu: Item [x]", "icon: image", "icon: (none)"));
}

TEST_F(StatusItem, NotifiesItsObserversAtOnce) {
    int changes = 0;
    auto observer = mac.statusItem.observeEffectiveAppearance([&] { ++changes; });
    mac.statusItem.setAppearance("Dark");
    EXPECT_EQ(mac.statusItem.effectiveAppearanceName(), "Dark");
    observer.reset();
    mac.statusItem.setAppearance("Light");
    EXPECT_EQ(changes, 1);
}

class Preferences : public Simulated {};

TEST_F(Preferences, AnswerNoForAValueOfAnotherType) {
    mac.userDefaults.store("key", std::string("YES"));
    EXPECT_FALSE(mac.userDefaults.boolForKey("key"));
    EXPECT_EQ(mac.userDefaults.stringArrayForKey("key"), nullptr);
    mac.userDefaults.store("key", true);
    EXPECT_EQ(mac.userDefaults.stringArrayForKey("key"), nullptr);
}

class Center : public Simulated {};

TEST_F(Center, RespondsToItsDelegateOnly) {
    int responses = 0;
    auto delegate =
        mac.userNotificationCenter.setDelegate([&](const auto&, const auto& completionHandler) {
            ++responses;
            completionHandler();
        });
    mac.userNotificationCenter.respond({});
    delegate.reset();
    mac.userNotificationCenter.respond({});
    EXPECT_EQ(responses, 1);
    EXPECT_EQ(mac.userNotificationCenter.completedResponses(), 1);
}

class Tools : public Simulated {};

TEST_F(Tools, PrintAllThatASocketHoldsWithoutBlocking) {
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 0, .output = std::string(50000, 'o')});
    char* const noArguments = nullptr;
    const auto tool = mac.authorization.executeWithPrivileges(nullptr, "/tool", 0, &noArguments);
    int status = 0;
    EXPECT_GT(waitpid(-1, &status, 0), 0);
    std::string read(50001, ' ');
    EXPECT_EQ(std::fread(read.data(), 1, read.size(), tool.communicationsPipe), 50000U);
    std::fclose(tool.communicationsPipe);
}

TEST_F(Tools, RequireThePasswordPrompt) {
    person.whenPasswordIsAsked = [] { return -60005; };
    const auto created = mac.authorization.create(0);
    EXPECT_EQ(mac.authorization.copyRights(
                  created.authorization,
                  {.name = "right", .valueLength = 1, .value = "v", .flags = 2}, 3),
              -60005);
    EXPECT_THAT(newLines(), ElementsAre("authorize: right"));
    EXPECT_EQ(mac.authorization.askedRight().value, "v");
    EXPECT_EQ(mac.authorization.askedRight().flags, 3U);
    EXPECT_EQ(mac.authorization.unfreed(), 1U);
    mac.authorization.free(created.authorization, 0);
    EXPECT_EQ(mac.authorization.unfreed(), 0U);
}

}  // namespace
}  // namespace brisel::tests
