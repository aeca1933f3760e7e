// The end of a privileged task: found by polling, or waited for.
// SPDX-License-Identifier: MIT
#include "tests/core/privileged/WatchedTask.h"

namespace brisel::tests {
namespace {

TEST_F(WatchedTask, PostsItsNotificationBeforeItCallsItsHandlerOnce) {
    const auto made = shell("exit 1");
    watch(made);
    launchAndEnd(made);
    passTime(1000);
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
    EXPECT_EQ(object, made.get());
    EXPECT_FALSE(made->isRunning());
    EXPECT_EQ(made->terminationStatus(), 1);
}

TEST_F(WatchedTask, IsLookedAtEveryTwentiethOfASecond) {
    const auto made = shell("exit 0");
    watch(made);
    launchAndEnd(made);
    passTime(49);
    EXPECT_TRUE(made->isRunning());
    EXPECT_THAT(heard, ElementsAre());
    passTime(1);
    EXPECT_FALSE(made->isRunning());
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
}

TEST_F(WatchedTask, RunsOnWhileItsToolDoes) {
    const auto made = waitingTool(5);
    watch(made);
    ASSERT_EQ(made->launch(), 0);
    passTime(200);
    EXPECT_TRUE(made->isRunning());
    EXPECT_THAT(heard, ElementsAre());
    tools.tell("\n");
    waitForTheEnd(made->processIdentifier());
    passTime(50);
    EXPECT_EQ(made->terminationStatus(), 5);
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
}

TEST_F(WatchedTask, RunsOnWhenAnotherTasksToolHasEnded) {
    const auto other = shell("exit 3");
    ASSERT_EQ(other->launch(), 0);
    const auto made = waitingTool(5);
    ASSERT_EQ(made->launch(), 0);
    waitForTheEnd(other->processIdentifier());
    made->checkTaskStatus();
    ASSERT_TRUE(made->isRunning());
    other->waitUntilExit();
    EXPECT_EQ(other->terminationStatus(), 3);
    tools.tell("\n");
    made->waitUntilExit();
    EXPECT_EQ(made->terminationStatus(), 5);
}

TEST_F(WatchedTask, PostsItsNotificationWithoutAHandlerToo) {
    const auto made = shell("exit 0");
    launchAndEnd(made);
    passTime(50);
    EXPECT_THAT(heard, ElementsAre("notification"));
}

TEST_F(WatchedTask, StaysAliveUntilItsEndWasNoticed) {
    auto made = shell("exit 0");
    watch(made);
    const std::weak_ptr<KJPrivilegedTask> observer = made;
    launchAndEnd(made);
    made.reset();
    EXPECT_FALSE(observer.expired());
    passTime(50);
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
    EXPECT_TRUE(observer.expired());
}

TEST_F(WatchedTask, MayBeLaunchedAgainByItsHandler) {
    const auto made = shell("exit 0");
    int launches = 1;
    made->setTerminationHandler([&](KJPrivilegedTask& ended) {
        if (++launches == 2) {
            EXPECT_EQ(ended.launch(), 0);
        }
    });
    launchAndEnd(made);
    passTime(50);
    EXPECT_TRUE(made->isRunning());
    waitForTheEnd(made->processIdentifier());
    passTime(50);
    EXPECT_FALSE(made->isRunning());
    EXPECT_EQ(launches, 3);
    made->setTerminationHandler({});
}

TEST_F(WatchedTask, MayLoseItsHandlerToTheHandlerItself) {
    const auto made = shell("exit 0");
    made->setTerminationHandler([this, words = std::string("handler")](KJPrivilegedTask& ended) {
        ended.setTerminationHandler(nullptr);
        heard.push_back(words);
    });
    launchAndEnd(made);
    passTime(1000);
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
    EXPECT_FALSE(made->terminationHandler());
}

TEST_F(WatchedTask, CountsAsEndedWhereItsChildCannotBePolled) {
    const auto made = shell("exit 0");
    watch(made);
    ASSERT_EQ(made->launch(), 0);
    ASSERT_EQ(waitpid(made->processIdentifier(), nullptr, 0), made->processIdentifier());
    passTime(50);
    EXPECT_FALSE(made->isRunning());
    EXPECT_NE(made->terminationStatus(), 0);
    EXPECT_THAT(heard, ElementsAre("notification", "handler"));
}

TEST_F(WatchedTask, MayBeOwnedByItsTimerAloneWhenItsEndIsNoticed) {
    auto made = shell("exit 1");
    ASSERT_EQ(made->launch(), 0);
    waitForTheEnd(made->processIdentifier());
    auto& task = *made;
    const std::weak_ptr<KJPrivilegedTask> watched = made;
    made.reset();
    task.checkTaskStatus();
    EXPECT_TRUE(watched.expired());
}

class WaitedForTask : public WatchedTask {};

TEST_F(WaitedForTask, EndsSilently) {
    const auto made = shell("exit 1");
    watch(made);
    run(made);
    passTime(1000);
    EXPECT_THAT(heard, ElementsAre());
    EXPECT_FALSE(made->isRunning());
    EXPECT_EQ(made->terminationStatus(), 1);
    EXPECT_THAT(newLogLines(), ElementsAre());
}

TEST_F(WaitedForTask, EndsWithZeroWhereASignalKilledIt) {
    const auto made = shell("kill -9 $$");
    run(made);
    EXPECT_EQ(made->terminationStatus(), 0);
}

TEST_F(WaitedForTask, EndsWithEachExitCode) {
    for (const int code : {0, 1, 127, 255}) {
        const auto made = shell("exit " + std::to_string(code));
        run(made);
        EXPECT_EQ(made->terminationStatus(), code);
    }
}

TEST_F(WaitedForTask, ReturnsAtOnceWhereNothingRuns) {
    const auto made = shell("exit 2");
    made->waitUntilExit();
    const auto lines = newLogLines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0],
                AllOf(StartsWith("Task <KJPrivilegedTask: 0x"), EndsWith("> is not running")));
    EXPECT_EQ(made->terminationStatus(), 0);
    run(made);
    made->waitUntilExit();
    EXPECT_THAT(newLogLines(), ElementsAre(lines[0]));
    EXPECT_EQ(made->terminationStatus(), 2);
}

TEST_F(WaitedForTask, IsDestroyedWithItsLastOwner) {
    auto made = shell("exit 0");
    const std::weak_ptr<KJPrivilegedTask> observer = made;
    run(made);
    made.reset();
    EXPECT_TRUE(observer.expired());
}

TEST_F(WaitedForTask, MayBeOwnedByItsTimerAlone) {
    auto made = shell("exit 1");
    ASSERT_EQ(made->launch(), 0);
    auto& task = *made;
    const std::weak_ptr<KJPrivilegedTask> watched = made;
    made.reset();
    task.waitUntilExit();
    EXPECT_TRUE(watched.expired());
}

TEST_F(WatchedTask, CannotBeTerminated) {
    const auto made = waitingTool(6);
    watch(made);
    ASSERT_EQ(made->launch(), 0);
    made->terminate();
    passTime(100);
    EXPECT_TRUE(made->isRunning());
    EXPECT_EQ(kill(made->processIdentifier(), 0), 0);
    tools.tell("\n");
    made->waitUntilExit();
    EXPECT_EQ(made->terminationStatus(), 6);
}

}  // namespace
}  // namespace brisel::tests
