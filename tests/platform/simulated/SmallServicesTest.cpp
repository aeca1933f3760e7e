// The simulated services other than disks and folders.
// SPDX-License-Identifier: MIT
#include <sys/wait.h>

#include <array>

#include "platform/simulated/ProgramEnded.h"
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

class Application : public Simulated {};

TEST_F(Application, EndsTheProgramAfterItsTerminationStep) {
    mac.application.setTerminationStep([this] { mac.transcript.write("step"); });
    EXPECT_THROW(mac.application.terminate(), platform::simulated::ProgramEnded);
    EXPECT_THAT(newLines(), ElementsAre("terminate", "step"));
}

class Services : public Simulated {};

TEST_F(Services, AnswerLoginItemRequests) {
    EXPECT_TRUE(mac.loginItems.setEnabled("x.y", true));
    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Refuse);
    EXPECT_FALSE(mac.loginItems.setEnabled("x.y", false));
    EXPECT_THAT(newLines(), ElementsAre("login-item: x.y on", "login-item: x.y off"));
}

TEST_F(Services, FailTheNextScriptAlone) {
    mac.scriptRunner.failNext({{"old", "1"}});
    mac.scriptRunner.failNext({{"b", "2"}, {"a", "1"}});
    const auto failed = mac.scriptRunner.execute("source");
    ASSERT_TRUE(failed.error);
    EXPECT_THAT(*failed.error, ElementsAre(Pair("b", "2"), Pair("a", "1")));
    EXPECT_FALSE(mac.scriptRunner.execute("source").error);
    EXPECT_THAT(newLines(), ElementsAre("script: source", "script: source"));
}

TEST_F(Services, OpenAFolderOrNil) {
    mac.workspace.openURL(platform::FileURL("/a b"));
    mac.workspace.openURL(std::nullopt);
    EXPECT_THAT(newLines(), ElementsAre("open: file:///a%20b/", "open: (null)"));
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

TEST_F(Preferences, AnswerWithWhatIsStoredThenRegistered) {
    auto& defaults = mac.userDefaults;
    EXPECT_FALSE(defaults.boolForKey("key"));
    defaults.registerDefaults({{"key", true}});
    EXPECT_TRUE(defaults.boolForKey("key"));
    defaults.setBool("key", false);
    EXPECT_FALSE(defaults.boolForKey("key"));
    EXPECT_THAT(newLines(), ElementsAre("default: key = NO"));
}

TEST_F(Preferences, AnswerNoForAValueOfAnotherType) {
    mac.userDefaults.store("key", std::string("YES"));
    EXPECT_FALSE(mac.userDefaults.boolForKey("key"));
    EXPECT_EQ(mac.userDefaults.stringArrayForKey("key"), nullptr);
    mac.userDefaults.store("key", true);
    EXPECT_EQ(mac.userDefaults.stringArrayForKey("key"), nullptr);
}

TEST_F(Preferences, AreListedInAlphabeticalOrder) {
    auto& defaults = mac.userDefaults;
    defaults.store("b", true);
    defaults.setStringArray(
        "a", std::make_shared<const std::vector<std::string>>(std::vector<std::string>{"x", "y"}));
    EXPECT_THAT(defaults.stored(), ElementsAre("a = (x, y)", "b = YES"));
}

class Center : public Simulated {
  protected:
    bool accepted() {
        bool result = false;
        mac.userNotificationCenter.addNotificationRequest(
            {}, [&](const auto& error) { result = !error; });
        return result;
    }
};

TEST_F(Center, RefusesTheNextRequestAlone) {
    mac.userNotificationCenter.refuseNextRequest();
    EXPECT_FALSE(accepted());
    EXPECT_FALSE(mac.userNotificationCenter.lastPrompt());
    EXPECT_TRUE(accepted());
    EXPECT_TRUE(mac.userNotificationCenter.lastPrompt());
}

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

class Tools : public Simulated {
  protected:
    platform::StartedTool start(std::vector<std::string> words) {
        std::vector<char*> arguments;
        for (std::size_t index = 1; index < words.size(); ++index)
            arguments.push_back(words[index].data());
        arguments.push_back(nullptr);
        return mac.authorization.executeWithPrivileges(nullptr, words[0].c_str(), 0,
                                                       arguments.data());
    }
    static int endOf(const platform::StartedTool& tool) {
        int status = 0;
        EXPECT_GT(waitpid(-1, &status, 0), 0);
        std::fclose(tool.communicationsPipe);
        return status;
    }
};

TEST_F(Tools, PrintTheirCommandWithQuotesWhereNeeded) {
    endOf(start({"/tool", "a b", "q\"", "", "x"}));
    EXPECT_THAT(newLines(), ElementsAre(R"(run: /tool "a b" "q""  x)"));
}

TEST_F(Tools, EndAsScripted) {
    mac.authorization.setToolEnd({.exitStatus = 9, .signal = 0, .output = ""});
    EXPECT_EQ(WEXITSTATUS(endOf(start({"/tool"}))), 9);
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 15, .output = ""});
    EXPECT_EQ(WTERMSIG(endOf(start({"/tool"}))), 15);
}

TEST_F(Tools, FailTheirNextStartAlone) {
    mac.authorization.failLaunch(-1);
    mac.authorization.failLaunch(-2);
    EXPECT_EQ(start({"/tool"}).status, -2);
    EXPECT_THAT(newLines(), ElementsAre());
    const auto started = start({"/tool"});
    EXPECT_EQ(started.status, 0);
    endOf(started);
}

TEST_F(Tools, MountOnlyWhereTheySucceed) {
    attachNTFS("disk4", "Data");
    mac.authorization.setToolEnd({.exitStatus = 1, .signal = 0, .output = ""});
    endOf(start({"/sbin/mount_ntfs", "-o", "rw", "/dev/disk4", "/mnt/x"}));
    EXPECT_FALSE(mac.fileSystem.hasFolder("/mnt/x"));
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 0, .output = ""});
    endOf(start({"/sbin/mount_ntfs", "-o", "rw", "/dev/disk4", "/mnt/x"}));
    EXPECT_TRUE(mac.fileSystem.hasFolder("/mnt/x"));
    EXPECT_TRUE(mac.diskArbitration.isWritable("/mnt/x"));
}

TEST_F(Tools, PrintAllThatASocketHoldsWithoutBlocking) {
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 0, .output = std::string(50000, 'o')});
    const auto tool = start({"/tool"});
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
