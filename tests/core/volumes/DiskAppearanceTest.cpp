// Handling of an appeared disk, and of the stale records of one.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/DiskEvents.h"

namespace brisel::tests {
namespace {

class DiskAppearance : public RunningProgram {
  protected:
    void appear(DiskProperties properties) {
        mac.diskArbitration.attach("disk4s1", std::move(properties));
        turn();
    }

    static DiskProperties diskOfKind(const std::string& kind) {
        auto disk = ntfsDisk("Data");
        disk.description.volumeKind = kind;
        return disk;
    }
};

TEST_F(DiskAppearance, RecordsADiskThatIsNotMountedAsReadOnlyThoughTheRootIsWritable) {
    auto root = diskOfKind("apfs");
    root.description.volumePath = platform::FileURL("/");
    root.writable = true;
    mac.diskArbitration.attach("disk1s1", root);
    auto disk = ntfsDisk("Data");
    disk.description.volumePath.reset();
    appear(disk);
    EXPECT_TRUE(mac.fileManager.isWritableFileAtPath("/"));
    EXPECT_FALSE(volume()->writable());
}

TEST_F(DiskAppearance, RecordsTheTextOfAMissingDeviceNode) {
    auto disk = ntfsDisk("Data");
    disk.description.mediaBSDName.reset();
    diskAppeared(manager(), {.bsdName = "disk4s1"}, disk.description);
    EXPECT_EQ(volume()->deviceNode(), "(null)");
}

TEST_F(DiskAppearance, OnlyLogsADiskThatIsNotMountable) {
    auto disk = ntfsDisk("Data");
    for (const std::optional<bool> mountable : {std::optional(false), std::optional<bool>()}) {
        disk.description.volumeMountable = mountable;
        diskAppeared(manager(), {.bsdName = "disk4s1"}, disk.description);
        EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
    }
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(DiskAppearance, WarnsOfANamelessVolumeAsNull) {
    auto disk = diskOfKind("NTFS");
    disk.description.volumeName.reset();
    appear(disk);
    EXPECT_THAT(newLogLines(),
                Contains("Warning: The Volume Kind of \"(null)\" is not \"ntfs\" but \"NTFS\""));
}

TEST_F(DiskAppearance, AsksForWritabilityBeforeAnyTest) {
    const auto before = mac.faults.calls();
    appear(diskOfKind("apfs"));
    EXPECT_EQ(mac.faults.calls(), before + 1);
}

TEST_F(DiskAppearance, RecordsADescriptionWithoutAnyName) {
    diskAppeared(manager(), {.bsdName = "disk9"},
                 platform::DiskDescription{.volumeMountable = true,
                                           .volumeKind = "ntfs",
                                           .volumeName = {},
                                           .mediaBSDName = {},
                                           .volumePath = {},
                                           .mediaUUID = {},
                                           .volumeUUID = {}});
    EXPECT_THAT(devices(), ElementsAre("(null)"));
    EXPECT_THAT(labels(), ElementsAre("(null)"));
    EXPECT_THAT(newLogLines(), ElementsAre("disk disk9 appeared"));
}

TEST_F(DiskAppearance, NeitherRebuildsTheMenuNorIsBusyWhereTheRemountFindsNoDisk) {
    storeAutomountList({SomeUUID});
    bool busy = true;
    person.whenAlertShows = [&](const auto&) {
        busy = manager().inProgress();
        return 0;
    };
    auto disk = ntfsDisk("Data", SomeUUID);
    disk.description.mediaBSDName.reset();
    diskAppeared(manager(), {.bsdName = "disk4s1"}, disk.description);
    EXPECT_THAT(newLines(), Not(Contains(StartsWith("menu:"))));
    EXPECT_FALSE(busy);
    EXPECT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_EQ(manager().volumes().size(), 1U);
}

class StaleRecord : public RunningProgram {};

TEST_F(StaleRecord, IsFoundByItsDeviceNode) {
    attachQuietly("disk4s1", "Data");
    changeDiskData(*volume(), [](auto& data) { data.mediaBSDName = "disk9s9"; });
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(labels(), ElementsAre("Data"));
}

TEST_F(StaleRecord, StopsTheHandlingOfAListedVolumeToo) {
    attachQuietly("disk4s1", "Data", SomeUUID);
    attachQuietly("disk5s1", "Other");
    storeAutomountList({SomeUUID});
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(StaleRecord, EndsTheLoopWithTheFirstRemoval) {
    attachQuietly("disk4s1", "Data");
    const auto twin = addRecord("disk4s1");
    mac.diskArbitration.report("disk4s1");
    turn();
    ASSERT_EQ(manager().volumes().size(), 1U);
    EXPECT_EQ(volume(), twin);
}

}  // namespace
}  // namespace brisel::tests
