// Simulated disks: reports and mount points.
// SPDX-License-Identifier: MIT
#include "tests/platform/simulated/Disks.h"

namespace brisel::tests {
namespace {

TEST_F(Disks, AreReportedInTheOrderOfAttaching) {
    attachNTFS("disk9", "A");
    attachNTFS("disk1", "B");
    attachNTFS("disk5", "C");
    listen();
    attachNTFS("disk0", "D");
    EXPECT_THAT(heard, ElementsAre());
    turn();
    EXPECT_THAT(heard, ElementsAre("+disk9", "+disk1", "+disk5", "+disk0"));
}

TEST_F(Disks, AreReportedWithTheDescriptionOfTheMoment) {
    listen();
    attachNTFS("disk4", "Before");
    disks.change("disk4", ntfsDisk("After"));
    disks.report("disk4");
    turn();
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports[0].volumeName, "Before");
    EXPECT_EQ(reports[1].volumeName, "After");
}

TEST_F(Disks, DisappearWithTheirLastDescription) {
    listen();
    attachNTFS("disk4", "Data");
    disks.detach("disk4");
    turn();
    EXPECT_THAT(heard, ElementsAre("+disk4", "-disk4"));
    EXPECT_EQ(reports[1].volumePath, platform::FileURL("/Volumes/Data"));
    EXPECT_EQ(disks.copyDescription(disk("disk4")).volumeName, "Data");
    EXPECT_FALSE(disks.isAttached("disk4"));
    EXPECT_TRUE(disks.wasEverAttached("disk4"));
    EXPECT_FALSE(disks.wasEverAttached("disk5"));
}

TEST_F(Disks, LeaveTheirFolderEmpty) {
    attachNTFS("disk4", "Data");
    mac.fileSystem.makeFile("/Volumes/Data/file");
    disks.detach("disk4");
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Volumes/Data"));
    EXPECT_EQ(mac.fileSystem.entryCount("/Volumes/Data"), 0U);
}

TEST_F(Disks, AreNotReportedUnlessMountable) {
    listen();
    auto properties = ntfsDisk("Data");
    properties.description.volumeMountable = false;
    disks.attach("disk4", properties);
    disks.report("disk4");
    disks.detach("disk4");
    properties.description.volumeMountable.reset();
    disks.attach("disk4", properties);
    turn();
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(Disks, AreNotReportedToEndedSubscriptions) {
    listen();
    attachNTFS("disk4", "Data");
    appeared.reset();
    turn();
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(Disks, AreSilentWithoutASession) {
    mac.faults.failCall(1);
    attachNTFS("disk4", "Data");
    listen();
    turn();
    EXPECT_THAT(heard, ElementsAre());
    EXPECT_FALSE(disks.diskFromBSDName("disk4"));
    EXPECT_FALSE(disks.diskFromVolumePath(platform::FileURL("/Volumes/Data")));
}

TEST_F(Disks, AreCreatedFromAnyName) {
    EXPECT_EQ(disks.diskFromBSDName("disk77")->bsdName, "disk77");
    EXPECT_FALSE(disks.diskFromBSDName(std::nullopt));
    EXPECT_EQ(disks.copyDescription(disk("disk77")), platform::DiskDescription());
}

TEST_F(Disks, AreFoundByTheirCurrentMountPoint) {
    attachNTFS("disk4", "Data");
    const platform::FileURL path("/Volumes/Data");
    EXPECT_EQ(disks.diskFromVolumePath(path)->bsdName, "disk4");
    EXPECT_FALSE(disks.diskFromVolumePath(platform::FileURL("/Volumes")));
    EXPECT_FALSE(disks.diskFromVolumePath(std::nullopt));
    disks.detach("disk4");
    EXPECT_FALSE(disks.diskFromVolumePath(path));
}

TEST_F(Disks, OnOnePathResolveToTheLaterMount) {
    const platform::FileURL path("/Volumes/Data");
    attachNTFS("disk4", "Data");
    attachNTFS("disk1", "Data");
    EXPECT_EQ(disks.diskFromVolumePath(path)->bsdName, "disk1");
    disks.mountBehind("disk4", "/Volumes/Data");
    EXPECT_EQ(disks.diskFromVolumePath(path)->bsdName, "disk4");
    EXPECT_TRUE(disks.isWritable("/Volumes/Data"));
    disks.detach("disk4");
    EXPECT_EQ(disks.diskFromVolumePath(path)->bsdName, "disk1");
    EXPECT_FALSE(disks.isWritable("/Volumes/Data"));
}

TEST_F(Disks, CountAsNewlyMountedOnlyIfTheirPathChanges) {
    attachNTFS("disk4", "Data");
    attachNTFS("disk5", "Data");
    auto changed = properties("disk4");
    changed.writable = true;
    disks.change("disk4", changed);
    EXPECT_EQ(disks.diskFromVolumePath(platform::FileURL("/Volumes/Data"))->bsdName, "disk5");
}

}  // namespace
}  // namespace brisel::tests
