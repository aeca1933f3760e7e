// The factory methods that create, launch and wait in one call.
// SPDX-License-Identifier: MIT
#include "tests/core/privileged/WatchedTask.h"

namespace brisel::tests {
namespace {

class TaskFactory : public WatchedTask {
  protected:
    static void expectEnded(const Task& made, int status, const std::string& output) {
        EXPECT_FALSE(made->isRunning());
        EXPECT_EQ(made->terminationStatus(), status);
        EXPECT_EQ(made->outputFileHandle()->readDataToEndOfFile(), output);
    }
};

TEST_F(TaskFactory, RunsALaunchPath) {
    expectEnded(KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPath(withTools, "/bin/echo"), 0,
                "\n");
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(TaskFactory, RunsArguments) {
    expectEnded(KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArguments(
                    withTools, "/bin/sh", {"-c", "echo out; exit 7"}),
                7, "out\n");
}

TEST_F(TaskFactory, RunsInADirectory) {
    expectEnded(KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectory(
                    withTools, "/bin/pwd", {}, "/usr"),
                0, "/usr\n");
}

TEST_F(TaskFactory, RunsWithAnAuthorizationOfTheCaller) {
    expectEnded(KJPrivilegedTask::
                    launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectoryAuthorization(
                        withTools, "/bin/pwd", {}, "/usr", tools.own()),
                0, "/usr\n");
    EXPECT_THAT(tools.calls, ElementsAre("execute"));
}

TEST_F(TaskFactory, ReturnsATaskAlsoWhereTheLaunchFailed) {
    tools.executeStatus = -60031;
    tools.copyStatus = -60006;
    const std::vector<Task> made{
        KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPath(withTools, "/usr/bin/true"),
        KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArguments(withTools, "/usr/bin/true",
                                                                        {}),
        KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectory(
            withTools, "/usr/bin/true", {}, "/"),
        KJPrivilegedTask::
            launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectoryAuthorization(
                withTools, "/usr/bin/true", {}, "/", tools.own())};
    for (const auto& one : made) {
        EXPECT_FALSE(one->isRunning());
        EXPECT_EQ(one->terminationStatus(), 0);
    }
    const auto lines = newLogLines();
    EXPECT_EQ(lines.size(), 4U);
    EXPECT_THAT(lines, Each(EndsWith("> is not running")));
}

}  // namespace
}  // namespace brisel::tests
