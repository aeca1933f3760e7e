// Launching a privileged task: authorization, environment of the tool, and failures.
// SPDX-License-Identifier: MIT
#include "tests/core/privileged/RealTools.h"

namespace brisel::tests {
namespace {

class Launch : public PrivilegedTask {
  protected:
    static void expectUntouched(const Task& made) {
        EXPECT_FALSE(made->isRunning());
        EXPECT_EQ(made->processIdentifier(), 0);
        EXPECT_EQ(made->terminationStatus(), 0);
        EXPECT_EQ(made->outputFileHandle(), nullptr);
    }
};

TEST_F(Launch, AsksForTheRightThenStartsTheToolThenFrees) {
    const auto made = task("/usr/bin/true");
    run(made);
    EXPECT_THAT(tools.calls, ElementsAre("create", "copyRights", "execute", "free"));
    EXPECT_EQ(tools.createFlags, 0U);
    EXPECT_EQ(tools.rightName, "system.privilege.admin");
    EXPECT_EQ(tools.itemFlags, 0U);
    EXPECT_EQ(tools.copyFlags, 0x13U);
    EXPECT_EQ(tools.executeFlags, 0U);
    EXPECT_EQ(tools.freeFlags, 0U);
    EXPECT_EQ(tools.usedAuthorization, tools.own());
}

TEST_F(Launch, DescribesThePathByItsPointerAndItsLength) {
    const auto made = task("/usr/bin/../bin/true");
    run(made);
    const char* const pointer = made->launchPath().c_str();
    EXPECT_EQ(tools.toolPointer, pointer);
    EXPECT_EQ(tools.valueLength, std::strlen("/usr/bin/../bin/true"));
    EXPECT_EQ(std::memcmp(tools.value.data(), &pointer, sizeof pointer), 0);
}

TEST_F(Launch, DescribesAPathShorterThanAPointerByItsFirstBytes) {
    const auto made = task("/ab");
    tools.copyStatus = -60005;
    EXPECT_EQ(made->launch(), -60005);
    const char* const pointer = made->launchPath().c_str();
    EXPECT_EQ(tools.valueLength, 3U);
    EXPECT_EQ(std::memcmp(tools.value.data(), &pointer, 3), 0);
}

TEST_F(Launch, WithoutALaunchPathAsksForAnEmptyOneAndStartsNoTool) {
    const auto made = task("");
    EXPECT_EQ(made->launch(), 0);
    EXPECT_EQ(tools.valueLength, 0U);
    made->waitUntilExit();
    EXPECT_NE(made->terminationStatus(), 0);
    EXPECT_EQ(made->outputFileHandle()->readDataToEndOfFile(), "");
}

TEST_F(Launch, RunsTheToolAndItsArgumentsAsTheyStand) {
    const std::vector<std::string> arguments{"%s|", "a b", "it's", "\"q\"", "", "*", "$HOME", "\n"};
    EXPECT_EQ(outputOf(task("/usr/bin/printf", arguments)), "a b|it's|\"q\"||*|$HOME|\n|");
    EXPECT_EQ(tools.arguments, arguments);
}

TEST_F(Launch, EndsAnArgumentAtANullCharacter) {
    EXPECT_EQ(outputOf(task("/bin/echo", {std::string("ab\0cd", 5)})), "ab\n");
}

TEST_F(Launch, RunsATaskWithoutArguments) {
    EXPECT_EQ(outputOf(task("/bin/echo")), "\n");
    EXPECT_TRUE(tools.arguments.empty());
    const auto made = KJPrivilegedTask::initWithLaunchPath(withTools, "/bin/echo");
    EXPECT_EQ(outputOf(made), "\n");
}

TEST_F(Launch, ChangesTheWorkingDirectoryForTheCallOnly) {
    const auto before = std::filesystem::current_path();
    const auto made = task("/bin/pwd");
    made->setCurrentDirectoryPath("/usr/bin");
    EXPECT_EQ(outputOf(made), std::filesystem::canonical("/usr/bin").string() + "\n");
    EXPECT_EQ(tools.workingDirectory, std::filesystem::canonical("/usr/bin"));
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Launch, IgnoresAWorkingDirectoryThatIsNotThere) {
    const auto before = std::filesystem::current_path();
    const auto made = task("/usr/bin/true");
    made->setCurrentDirectoryPath("/no/such/folder");
    run(made);
    EXPECT_EQ(tools.workingDirectory, before);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Launch, RestoresTheWorkingDirectoryAfterAFailure) {
    const auto before = std::filesystem::current_path();
    const auto made = task("/usr/bin/true");
    made->setCurrentDirectoryPath("/usr/bin");
    tools.executeStatus = -60031;
    EXPECT_EQ(made->launch(), -60031);
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Launch, ReturnsTheStatusOfEachFailedStepAndChangesNothing) {
    struct Step {
        platform::OSStatus RealTools::*status;
        std::vector<std::string> calls;
    };
    // A refusal leaves the reference unfreed.
    const Step steps[] = {{&RealTools::createStatus, {"create"}},
                          {&RealTools::copyStatus, {"create", "copyRights"}},
                          {&RealTools::executeStatus, {"create", "copyRights", "execute", "free"}}};
    for (const auto& [status, calls] : steps) {
        SCOPED_TRACE(calls.back());
        const auto made = task("/usr/bin/true");
        tools.calls.clear();
        tools.*status = -60006;
        EXPECT_EQ(made->launch(), -60006);
        expectUntouched(made);
        EXPECT_EQ(tools.calls, calls);
        tools.*status = 0;
    }
    EXPECT_THAT(newLogLines(), ElementsAre());
}

TEST_F(Launch, LeavesTheReferenceUnfreedOnRefusalAlone) {
    const auto made = KJPrivilegedTask::initWithLaunchPath(mac.platform, "/usr/bin/true");
    run(made);
    EXPECT_EQ(mac.authorization.unfreed(), 0U);
    person.whenPasswordIsAsked = [] { return platform::errAuthorizationCanceled; };
    EXPECT_EQ(made->launch(), -60006);
    EXPECT_EQ(mac.authorization.unfreed(), 1U);
}

TEST_F(Launch, FailsWithItsOwnCodeWhereTheCallIsMissing) {
    mac.authorization.removeExecuteWithPrivileges();
    const auto made = KJPrivilegedTask::initWithLaunchPath(mac.platform, "/usr/bin/true");
    EXPECT_EQ(made->launch(), -70001);
    EXPECT_EQ(made->launchWithAuthorization(nullptr), -70001);
    constexpr const char* Line =
        "log: AuthorizationExecuteWithPrivileges() function not available on this system";
    EXPECT_THAT(newLines(), ElementsAre(Line, Line));
    expectUntouched(made);
    EXPECT_EQ(person.passwordPromptsSeen, 0);
}

TEST_F(Launch, UsesAnAuthorizationThatTheCallerHolds) {
    const auto made = task("/usr/bin/true");
    EXPECT_EQ(made->launchWithAuthorization(tools.own()), 0);
    made->waitUntilExit();
    EXPECT_THAT(tools.calls, ElementsAre("execute"));
    EXPECT_EQ(tools.usedAuthorization, tools.own());
}

TEST_F(Launch, IsASuccessWithoutAStartWhileTheTaskRuns) {
    const auto made = waitingTool();
    EXPECT_EQ(made->launch(), 0);
    const auto child = made->processIdentifier();
    tools.calls.clear();
    EXPECT_EQ(made->launch(), 0);
    EXPECT_EQ(made->launchWithAuthorization(tools.own()), 0);
    const auto line = "Task already running: " + made->description();
    EXPECT_THAT(newLogLines(), ElementsAre(line, line));
    EXPECT_THAT(line, EndsWith("> /bin/sh '-c' 'read line; exit 0'"));
    EXPECT_TRUE(tools.calls.empty());
    EXPECT_EQ(made->processIdentifier(), child);
    tools.tell("\n");
    made->waitUntilExit();
}

TEST_F(Launch, ReadsTheChildFromTheOwnerOfItsOutput) {
    const auto made = shell("echo $$");
    EXPECT_EQ(made->launch(), 0);
    const auto child = made->processIdentifier();
    EXPECT_GT(child, 0);
    made->waitUntilExit();
    EXPECT_EQ(made->outputFileHandle()->readDataToEndOfFile(), std::to_string(child) + "\n");
}

TEST_F(Launch, SucceedsAgainAfterTheEnd) {
    const auto made = shell("echo first; exit 3");
    EXPECT_EQ(outputOf(made), "first\n");
    EXPECT_EQ(made->terminationStatus(), 3);
    const auto handle = made->outputFileHandle();
    made->setArguments({"-c", "echo second; exit 4"});
    EXPECT_EQ(made->launch(), 0);
    EXPECT_TRUE(made->isRunning());
    EXPECT_EQ(made->terminationStatus(), 3);
    EXPECT_NE(made->outputFileHandle(), handle);
    made->waitUntilExit();
    EXPECT_EQ(made->terminationStatus(), 4);
}

TEST_F(Launch, ThatFailsKeepsTheResultsOfTheLastRun) {
    const auto made = shell("exit 3");
    EXPECT_EQ(outputOf(made), "");
    const auto handle = made->outputFileHandle();
    const auto child = made->processIdentifier();
    EXPECT_GT(child, 0);
    tools.executeStatus = -1;
    EXPECT_EQ(made->launch(), -1);
    EXPECT_EQ(made->terminationStatus(), 3);
    EXPECT_EQ(made->outputFileHandle(), handle);
    EXPECT_EQ(made->processIdentifier(), child);
    EXPECT_FALSE(made->isRunning());
}

}  // namespace
}  // namespace brisel::tests
