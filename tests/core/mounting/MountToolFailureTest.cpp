// Each failure of a mount by the mount tool, and its effects.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

constexpr const char* MountPoint = "/Users/user/.brisel/Data";

class MountToolFailure : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        attachQuietly("disk4s1", "Data", SomeUUID);
    }

    /// Starts a remount; returns the transcript from the creation of the mount point.
    std::vector<std::string> linesFromTheMountPointOn() {
        choose("re-mount Data");
        auto lines = newLines();
        lines.erase(lines.begin(), std::ranges::find(lines, std::string("mkdir: ") + MountPoint));
        return lines;
    }
    void answerPrompt(platform::OSStatus status) {
        person.whenPasswordIsAsked = [status] { return status; };
    }
    using Call = platform::simulated::FileManager::Call;
};

TEST_F(MountToolFailure, OfTheMountPointEndsSilently) {
    mac.fileManager.fail(Call::Create,
                         {.localizedDescription = "Disk full", .localizedFailureReason = {}});
    EXPECT_THAT(linesFromTheMountPointOn(),
                ElementsAre("mkdir: /Users/user/.brisel/Data",
                            "log: Unable to create folder: Disk full, reason: (null)"));
    EXPECT_TRUE(manager().inProgress());
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
    EXPECT_EQ(person.passwordPromptsSeen, 0);
    EXPECT_EQ(mac.diskArbitration.properties("disk4s1").description.volumePath, std::nullopt);
}

TEST_F(MountToolFailure, OfTheMountPointLogsItsReason) {
    mac.fileManager.fail(Call::Create,
                         {.localizedDescription = "No", .localizedFailureReason = "Rights"});
    EXPECT_THAT(linesFromTheMountPointOn(),
                Contains("log: Unable to create folder: No, reason: Rights"));
}

TEST_F(MountToolFailure, ByCancellingRemovesFolderAndRecord) {
    answerPrompt(-60006);
    EXPECT_THAT(
        linesFromTheMountPointOn(),
        ElementsAre("mkdir: /Users/user/.brisel/Data", "authorize: system.privilege.admin",
                    "log: mount command cancelled by user", "delete: /Users/user/.brisel/Data",
                    emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_FALSE(manager().inProgress());
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(mac.fileSystem.hasFolder(MountPoint));
    EXPECT_TRUE(person.alertsSeen.empty());
}

TEST_F(MountToolFailure, ByCancellingDoesNotTouchOtherVolumes) {
    attachQuietly("disk5s1", "Other");
    answerPrompt(-60006);
    choose("re-mount Data");
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
}

TEST_F(MountToolFailure, OfTheCleanUpIsLogged) {
    answerPrompt(-60006);
    mac.fileManager.fail(Call::Delete,
                         {.localizedDescription = "Busy", .localizedFailureReason = "In use"});
    EXPECT_THAT(
        linesFromTheMountPointOn(),
        ElementsAre("mkdir: /Users/user/.brisel/Data", "authorize: system.privilege.admin",
                    "log: mount command cancelled by user", "delete: /Users/user/.brisel/Data",
                    "log: Unable to delete folder: Busy, reason: In use", emptyMenuLine(),
                    "icon: brisel-status-grey-light"));
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(MountToolFailure, OfThePasswordIsLoggedAsAFailedLaunch) {
    answerPrompt(-60005);
    EXPECT_THAT(linesFromTheMountPointOn(),
                ElementsAre("mkdir: /Users/user/.brisel/Data", "authorize: system.privilege.admin",
                            "log: something went wrong with mount command launch",
                            "delete: /Users/user/.brisel/Data", emptyMenuLine(),
                            "icon: brisel-status-grey-light"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(MountToolFailure, OfTheLaunchIsLogged) {
    mac.authorization.failLaunch(-60031);
    EXPECT_THAT(linesFromTheMountPointOn(),
                Contains("log: something went wrong with mount command launch"));
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(mac.fileSystem.hasFolder(MountPoint));
}

TEST_F(MountToolFailure, OfALaunchWithTheCancelStatusCountsAsCancelled) {
    mac.authorization.failLaunch(-60006);
    EXPECT_THAT(linesFromTheMountPointOn(), Contains("log: mount command cancelled by user"));
}

TEST_F(MountToolFailure, WithoutExecuteWithPrivilegesIsLogged) {
    mac.authorization.removeExecuteWithPrivileges();
    EXPECT_THAT(linesFromTheMountPointOn(),
                ElementsAre("mkdir: /Users/user/.brisel/Data",
                            "log: AuthorizationExecuteWithPrivileges() function not available on "
                            "this system",
                            "log: something went wrong with mount command launch",
                            "delete: /Users/user/.brisel/Data", emptyMenuLine(),
                            "icon: brisel-status-grey-light"));
}

TEST_F(MountToolFailure, OfTheToolIsReportedAndKeepsTheFolder) {
    mac.authorization.setToolEnd({.exitStatus = 17, .signal = 0, .output = ""});
    const auto lines = linesFromTheMountPointOn();
    const std::vector<std::string> fromTheLaunchOn(lines.begin() + 3, lines.end());
    EXPECT_THAT(
        fromTheLaunchOn,
        ElementsAre("log: mount command successfully launched for /dev/disk4s1",
                    "log: mount will fail, there is a termination status report: 17",
                    "icon: brisel-status-red-light", "alert: Volume \"Data\" not re-mountable",
                    "text: The volume is not re-mountable in read/write mode. Probably it "
                    "was not clean unmounted before.",
                    "buttons: OK", emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(manager().inProgress());
    EXPECT_TRUE(mac.fileSystem.hasFolder(MountPoint));
}

TEST_F(MountToolFailure, OfTheToolNeverFallsBackToAnotherMount) {
    mac.authorization.setToolEnd({.exitStatus = 1, .signal = 0, .output = ""});
    EXPECT_THAT(linesFromTheMountPointOn(), Not(Contains(StartsWith("mount: "))));
    EXPECT_EQ(person.passwordPromptsSeen, 1);
}

// Records that share a device are removed one by one, each time the first that is left.
TEST_F(MountToolFailure, OfTheToolRemovesTwoRecordsOfTheDevice) {
    const auto twin = NTFSVolume::initWithVolume({});
    twin->setDeviceNode("disk4s1");
    const auto third = NTFSVolume::initWithVolume({});
    third->setDeviceNode("disk4s1");
    manager().volumes().push_back(twin);
    manager().volumes().push_back(third);
    mac.authorization.setToolEnd({.exitStatus = 1, .signal = 0, .output = ""});
    manager().remountVolumeNamed("disk4s1");
    turn();
    EXPECT_THAT(manager().volumes(), ElementsAre(third));
}

TEST_F(MountToolFailure, BySignalCountsAsSuccess) {
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 9, .output = ""});
    choose("re-mount Data");
    EXPECT_TRUE(volume()->writable());
    EXPECT_FALSE(manager().inProgress());
}

}  // namespace
}  // namespace brisel::tests
