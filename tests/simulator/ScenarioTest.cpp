// Running a scenario: its lines, its ends, and what blocks it.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/simulator/ScriptedScenario.h"

namespace brisel::tests {
namespace {

class Scenario : public ScriptedScenario {};

TEST_F(Scenario, PlaysTheExample) {
    EXPECT_TRUE(
        run("default showDisclaimer NO\n"
            "start\n"
            "attach disk4s1 kind=ntfs name=Data path=/Volumes/Data "
            "volume-uuid=0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0\n"
            "quit\n"));
    EXPECT_THAT(
        lines,
        ElementsAre("> default showDisclaimer NO", "> start",
                    "menu: No NTFS Volumes to re-mount | --- | Start at Login | About Brisel | --- "
                    "| Quit Brisel",
                    "icon: brisel-status-grey-light",
                    "> attach disk4s1 kind=ntfs name=Data path=/Volumes/Data "
                    "volume-uuid=0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0",
                    "log: disk disk4s1 appeared", "permission: alert sound",
                    "notify: id=mount category=MOUNT volume=disk4s1 sound=Hero delay=0.2 "
                    "title=\"Data detected\" body=\"Re-mount it read-write?\"",
                    "menu: re-mount Data | Start at Login | --- | About Brisel | --- | Quit Brisel",
                    "icon: brisel-status-green-light", "> quit", "terminate", "synchronize"));
}

TEST_F(Scenario, EndsWithItsInput) {
    EXPECT_TRUE(run(""));
    EXPECT_TRUE(run(Started));
    EXPECT_THAT(lines, Not(Contains("terminate")));
}

TEST_F(Scenario, HasNothingToQuitBeforeTheStart) {
    EXPECT_FALSE(run("quit\nnonsense\n"));
    EXPECT_THAT(lines, ElementsAre("> quit"));
}

TEST_F(Scenario, InATerminalMayBeLeftBeforeTheStart) {
    EXPECT_TRUE(runInteractively("quit\nshow progress\n"));
    EXPECT_THAT(lines, Not(Contains("progress: no")));
}

TEST_F(Scenario, RunsNothingAfterTheTermination) {
    EXPECT_TRUE(run(std::string(Started) + "choose \"Quit Brisel\"\nnonsense\n"));
    EXPECT_EQ(lines.back(), "synchronize");
}

TEST_F(Scenario, SkipsBlankLinesAndComments) {
    EXPECT_TRUE(run("# comment \"unended\n\n   \n\t\nsystem 12\n"));
    EXPECT_THAT(lines, ElementsAre("> system 12"));
}

TEST_F(Scenario, EchoesALineAsItStands) {
    EXPECT_TRUE(run("  home   \"/a b\"  \r\n"));
    EXPECT_THAT(lines, ElementsAre(">   home   \"/a b\"  \r"));
}

TEST_F(Scenario, TakesAlertsAnswersFromItsCommands) {
    EXPECT_TRUE(run("start\npress \"OK, I understand.\"\nquit\n"));
    EXPECT_THAT(lines, Contains("log: User accepted the potential risk."));
    EXPECT_THAT(lines, Contains("icon: brisel-status-grey-light"));
    EXPECT_EQ(lines.back(), "synchronize");
}

TEST_F(Scenario, EndsWhereTheNoticeIsRefused) {
    EXPECT_TRUE(run("start\npress \"I am worried, please take me out.\"\nnonsense\n"));
    EXPECT_EQ(lines.back(), "synchronize");
}

TEST_F(Scenario, EndsWithItsInputWhileAnAlertIsUp) {
    EXPECT_TRUE(run("start\n"));
    EXPECT_EQ(lines.back(), "buttons: OK, I understand. | I am worried, please take me out.");
}

TEST_F(Scenario, EndsWithItsInputWhileThePromptIsUp) {
    EXPECT_TRUE(run(std::string(Started) +
                    "attach d kind=ntfs name=Data path=/Volumes/Data\nchoose \"re-mount Data\"\n"));
    EXPECT_EQ(lines.back(), "authorize: system.privilege.admin");
}

TEST_F(Scenario, LetsTheSurroundingsChangeWhileAnAlertIsUp) {
    EXPECT_TRUE(
        run("start\nattach d kind=ntfs name=Data path=/Volumes/Data\nshow volumes\n"
            "appearance dark\npress \"OK, I understand.\"\n"));
    const auto answered = std::ranges::find(lines, "> press \"OK, I understand.\"");
    const std::vector<std::string> before(lines.begin(), answered);
    EXPECT_THAT(before, Not(Contains("log: disk d appeared")));
    EXPECT_THAT(std::vector<std::string>(answered, lines.end()), Contains("log: disk d appeared"));
    EXPECT_EQ(lines.back(), "icon: brisel-status-green-dark");
}

TEST_F(Scenario, AnswersThePrompt) {
    EXPECT_TRUE(run(std::string(Started) +
                    "attach d kind=ntfs name=Data path=/Volumes/Data\nchoose \"re-mount Data\"\n"
                    "password fail -60005\n"));
    EXPECT_THAT(lines, Contains("log: something went wrong with mount command launch"));
}

TEST_F(Scenario, TellsAfterEachCommand) {
    EXPECT_TRUE(run("system 12\n\n# none\nhome /x\n"));
    EXPECT_EQ(commandsDone, 4);
}

TEST_F(Scenario, PromptsAPersonForWhatIsUp) {
    class NotedPrompts final : public simulator::CommandSource {
      public:
        std::vector<std::string> prompts;
        std::vector<std::string> commands{"press \"OK, I understand.\"", "start"};
        std::optional<std::string> nextLine(const std::string& prompt) override {
            prompts.push_back(prompt);
            if (commands.empty()) return std::nullopt;
            auto line = commands.back();
            commands.pop_back();
            return line;
        }
    };
    NotedPrompts source;
    simulator::Scenario(
        source, [](const auto&) {}, options)
        .run();
    EXPECT_THAT(source.prompts, ElementsAre("brisel> ", "alert> ", "brisel> "));
}

class Terminal : public ScriptedScenario {};

TEST_F(Terminal, GoesOnAfterABadCommand) {
    EXPECT_TRUE(runInteractively("nonsense\nsystem 13\nquit\n"));
    ASSERT_EQ(complaints.size(), 2U);
    EXPECT_THAT(complaints[0].complaint, HasSubstr("nonsense"));
    EXPECT_THAT(complaints[1].complaint, HasSubstr("usage: system 11|12"));
}

TEST_F(Terminal, DoesNotEcho) {
    EXPECT_TRUE(runInteractively("system 12\n"));
    EXPECT_THAT(lines, ElementsAre());
}

TEST_F(Terminal, HelpsWithEveryCommand) {
    EXPECT_TRUE(runInteractively("help\n"));
    for (const auto* const name :
         {"system",   "home",    "language",      "default",     "start",      "choose", "press",
          "password", "respond", "quit",          "attach",      "set",        "report", "detach",
          "refuse",   "hold",    "release",       "tool",        "launch",     "file",   "rmdir",
          "fail",     "script",  "notifications", "login-items", "appearance", "show"}) {
        EXPECT_THAT(lines, Contains(StartsWith("  " + std::string(name)))) << name;
    }
}

TEST_F(Terminal, GoesOnWhileAnAlertIsUp) {
    EXPECT_TRUE(
        runInteractively("start\nquit\npress Nothing\nhelp\npress \"OK, I understand.\"\n"));
    EXPECT_EQ(complaints.size(), 2U);
    EXPECT_THAT(lines, Contains("log: User accepted the potential risk."));
}

}  // namespace
}  // namespace brisel::tests
