// The read-write mount by the system's mount tool.
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

constexpr const char* RunData =
    "run: /sbin/mount_ntfs -o rw,auto,nobrowse,noowners,noatime /dev/disk4s1 "
    "/Users/user/.brisel/Data";

class MountTool : public RunningProgram {
  protected:
    void remountData() { choose("re-mount Data"); }
};

TEST_F(MountTool, MountsTheVolumeBelowTheHomeDirectory) {
    attachQuietly("disk4s1", "Data", SomeUUID);
    remountData();
    EXPECT_THAT(
        newLines(),
        ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light", "unmount: disk4s1",
                    "log: disk unmounted...", "mkdir: /Users/user/.brisel/Data",
                    "authorize: system.privilege.admin", RunData,
                    "log: mount command successfully launched for /dev/disk4s1", busyMenuLine(),
                    "icon: brisel-status-orange-light", "open: file:///Users/user/.brisel/Data/",
                    menuLine("show Data in Finder | unmount | remove all extended attributes | "
                             "mount automatically | ---"),
                    "icon: brisel-status-blue-light"));
}

TEST_F(MountTool, LeavesANewWritableRecordBehind) {
    attachQuietly("disk4s1", "Data", SomeUUID);
    const auto before = volume();
    remountData();
    ASSERT_EQ(manager().volumes().size(), 1U);
    const auto after = volume();
    EXPECT_NE(after, before);
    EXPECT_EQ(after->label(), "Data");
    EXPECT_TRUE(after->writable());
    EXPECT_EQ(after->deviceNode(), "disk4s1");
    EXPECT_EQ(after->volumePath(), platform::FileURL("/Users/user/.brisel/Data"));
    EXPECT_EQ(after->uuid(), SomeUUID);
    EXPECT_FALSE(after->notificationSent());
    EXPECT_FALSE(before->writable());
}

TEST_F(MountTool, RecordsTheDescriptionOfTheUnmountedDisk) {
    attachQuietly("disk4s1", "Data");
    remountData();
    EXPECT_EQ(volume()->diskData().volumePath, std::nullopt);
    EXPECT_EQ(volume()->diskData().mediaBSDName, "disk4s1");
}

TEST_F(MountTool, PutsTheNewRecordAtTheEnd) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    remountData();
    EXPECT_THAT(devices(), ElementsAre("disk5s1", "disk4s1"));
}

TEST_F(MountTool, LogsItsOutput) {
    attachQuietly("disk4s1", "Data");
    mac.authorization.setToolEnd({.exitStatus = 0, .signal = 0, .output = "one\ntwo"});
    remountData();
    EXPECT_THAT(newLines(), Contains(R"(log: mount command output: one\ntwo)"));
}

TEST_F(MountTool, LogsNoEmptyOutput) {
    attachQuietly("disk4s1", "Data");
    remountData();
    EXPECT_THAT(newLogLines(), Not(Contains(StartsWith("mount command output"))));
}

TEST_F(MountTool, LogsItsOutputBeforeItsStatus) {
    attachQuietly("disk4s1", "Data");
    mac.authorization.setToolEnd({.exitStatus = 3, .signal = 0, .output = "dirty"});
    remountData();
    EXPECT_THAT(
        newLogLines(),
        ElementsAre("disk unmounted...", "mount command successfully launched for /dev/disk4s1",
                    "mount command output: dirty",
                    "mount will fail, there is a termination status report: 3"));
}

TEST_F(MountTool, TakesTheLabelOfTheRecordForTheMountPoint) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Data");
    choose("re-mount Data-disk5s1");
    EXPECT_THAT(newLines(), Contains("mkdir: /Users/user/.brisel/Data-disk5s1"));
    EXPECT_THAT(labels(), ElementsAre("Data", "Data-disk5s1"));
}

TEST_F(MountTool, FallsBackToTheVolumeNameWhereTheRecordIsGone) {
    attachQuietly("disk4s1", "Data");
    volume()->setLabel("Label");
    mac.diskArbitration.hold();
    manager().remountVolumeNamed("disk4s1");
    manager().volumes().clear();
    auto renamed = mac.diskArbitration.properties("disk4s1");
    renamed.description.volumeName = "Fresh";
    mac.diskArbitration.change("disk4s1", renamed);
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(newLines(), Contains("mkdir: /Users/user/.brisel/Fresh"));
    EXPECT_THAT(labels(), ElementsAre("Fresh"));
}

TEST_F(MountTool, FallsBackToTheTextOfAMissingName) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.hold();
    manager().remountVolumeNamed("disk4s1");
    manager().volumes().clear();
    auto renamed = mac.diskArbitration.properties("disk4s1");
    renamed.description.volumeName.reset();
    mac.diskArbitration.change("disk4s1", renamed);
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(newLines(), Contains("mkdir: /Users/user/.brisel/(null)"));
}

TEST_F(MountTool, RecordsTheTextOfAMissingDeviceNode) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.hold();
    manager().remountVolumeNamed("disk4s1");
    auto nameless = mac.diskArbitration.properties("disk4s1");
    nameless.description.mediaBSDName.reset();
    mac.diskArbitration.change("disk4s1", nameless);
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk4s1", "(null)"));
}

TEST_F(MountTool, PutsTwoVolumesOfOneLabelOnTheSamePath) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    volume(1)->setLabel("Data");
    manager().remountVolumeNamed("disk4s1");
    manager().remountVolumeNamed("disk5s1");
    turn();
    EXPECT_EQ(std::ranges::count(newLines(), "mkdir: /Users/user/.brisel/Data"), 2);
}

TEST_F(MountTool, RecordsNoUUIDWhereTheDescriptionHasNone) {
    attachQuietly("disk4s1", "Data");
    remountData();
    EXPECT_EQ(volume()->uuid(), std::nullopt);
}

TEST_F(MountTool, RecordsTheUUIDOfTheMediumFirst) {
    auto disk = ntfsDisk("Data", OtherUUID);
    disk.description.mediaUUID = SomeUUID;
    mac.diskArbitration.attach("disk4s1", disk);
    turn();
    remountData();
    EXPECT_EQ(volume()->uuid(), SomeUUID);
}

TEST_F(MountTool, FollowsTheHomeDirectory) {
    mac.fileManager.setHomeDirectory("/Users/My Self");
    attachQuietly("disk4s1", "Data");
    remountData();
    EXPECT_THAT(newLines(), Contains("open: file:///Users/My%20Self/.brisel/Data/"));
}

TEST_F(MountTool, AcceptsAMountPointThatIsThereAlready) {
    mac.fileSystem.makeFolder("/Users/user/.brisel/Data");
    attachQuietly("disk4s1", "Data");
    remountData();
    EXPECT_TRUE(volume()->writable());
}

}  // namespace
}  // namespace brisel::tests
