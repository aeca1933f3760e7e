// Running a scenario: its lines, its ends, and what blocks it.
// SPDX-License-Identifier: MIT
#include "tests/simulator/ScriptedScenario.h"

namespace brisel::tests {
namespace {

class Scenario : public ScriptedScenario {};

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

TEST_F(Scenario, EchoesALineAsItStands) {
    EXPECT_TRUE(run("  home   \"/a b\"  \r\n"));
    EXPECT_THAT(lines, ElementsAre(">   home   \"/a b\"  \r"));
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
