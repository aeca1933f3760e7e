// Defaults, initialisers and description of a privileged task.
// SPDX-License-Identifier: MIT
#include "tests/core/privileged/RealTools.h"

namespace brisel::tests {
namespace {

class NewTask : public PrivilegedTask {};

TEST_F(NewTask, HasOnlyTheCurrentDirectory) {
    mac.fileManager.setCurrentDirectory("/some/where");
    const auto made = KJPrivilegedTask::init(withTools);
    EXPECT_EQ(made->launchPath(), "");
    EXPECT_TRUE(made->arguments().empty());
    EXPECT_EQ(made->outputFileHandle(), nullptr);
    EXPECT_FALSE(made->terminationHandler());
    EXPECT_FALSE(made->isRunning());
    EXPECT_EQ(made->processIdentifier(), 0);
    EXPECT_EQ(made->terminationStatus(), 0);
    EXPECT_EQ(made->currentDirectoryPath(), "/some/where");
}

TEST_F(NewTask, TakesWhatItsInitialiserIsGiven) {
    const auto path = KJPrivilegedTask::initWithLaunchPath(withTools, "/bin/ls");
    EXPECT_EQ(path->launchPath(), "/bin/ls");
    const auto both = KJPrivilegedTask::initWithLaunchPathArguments(withTools, "/bin/ls", {"-l"});
    EXPECT_EQ(both->launchPath(), "/bin/ls");
    EXPECT_THAT(both->arguments(), ElementsAre("-l"));
    const auto all = KJPrivilegedTask::initWithLaunchPathArgumentsCurrentDirectory(
        withTools, "/bin/ls", {"-l"}, "/tmp");
    EXPECT_EQ(all->launchPath(), "/bin/ls");
    EXPECT_THAT(all->arguments(), ElementsAre("-l"));
    EXPECT_EQ(all->currentDirectoryPath(), "/tmp");
}

TEST_F(NewTask, UsesTheValuesSetLast) {
    const auto made = KJPrivilegedTask::initWithLaunchPathArgumentsCurrentDirectory(
        withTools, "/bin/ls", {"-l"}, "/tmp");
    made->setTerminationHandler([](auto&) {});
    EXPECT_TRUE(made->terminationHandler());
    made->setLaunchPath("/bin/echo");
    made->setArguments({"more"});
    made->setCurrentDirectoryPath("/usr");
    made->setTerminationHandler(nullptr);
    EXPECT_EQ(made->launchPath(), "/bin/echo");
    EXPECT_THAT(made->arguments(), ElementsAre("more"));
    EXPECT_EQ(made->currentDirectoryPath(), "/usr");
    EXPECT_FALSE(made->terminationHandler());
}

TEST_F(NewTask, ReportsWhetherToolsCanBeStarted) {
    EXPECT_TRUE(KJPrivilegedTask::authorizationFunctionAvailable(mac.platform));
    mac.authorization.removeExecuteWithPrivileges();
    EXPECT_FALSE(KJPrivilegedTask::authorizationFunctionAvailable(mac.platform));
}

class TaskDescription : public PrivilegedTask {};

TEST_F(TaskDescription, HoldsThePathAndTheArgumentsInQuotes) {
    EXPECT_THAT(
        task("/sbin/mount_ntfs", {"-o", "x"})->description(),
        AllOf(StartsWith("<KJPrivilegedTask: 0x"), EndsWith("> /sbin/mount_ntfs '-o' 'x'")));
}

TEST_F(TaskDescription, EscapesNothing) {
    EXPECT_THAT(task("/bin/a b", {"it's", "a \"b\"", "", "%@"})->description(),
                EndsWith(R"(> /bin/a b 'it's' 'a "b"' '' '%@')"));
}

TEST_F(TaskDescription, NeverHoldsTheCurrentDirectory) {
    const auto made = task("/bin/ls", {"-l"});
    made->setCurrentDirectoryPath("/some/where");
    EXPECT_THAT(made->description(), AllOf(Not(HasSubstr("/some/where")), Not(HasSubstr("CWD"))));
}

TEST_F(TaskDescription, WithoutALaunchPathHoldsTheArgumentsAlone) {
    EXPECT_THAT(task("", {"-l"})->description(), EndsWith(">  '-l'"));
}

TEST_F(TaskDescription, DistinguishesTwoTasks) {
    const auto one = task("/bin/ls");
    const auto other = task("/bin/ls");
    EXPECT_NE(one->description(), other->description());
}

}  // namespace
}  // namespace brisel::tests
