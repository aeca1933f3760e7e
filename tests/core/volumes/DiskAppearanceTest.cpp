// Handling of an appeared disk.
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

TEST_F(DiskAppearance, LogsRecordsPromptsAndRebuildsTheMenu) {
    appear(ntfsDisk("Data", SomeUUID));
    EXPECT_THAT(newLines(),
                ElementsAre("log: disk disk4s1 appeared", "permission: alert sound",
                            "notify: id=mount category=MOUNT volume=disk4s1 sound=Hero delay=0.2 "
                            "title=\"Data detected\" body=\"Re-mount it read-write?\"",
                            "menu: re-mount Data | Start at Login | --- | About Brisel | --- | "
                            "Quit Brisel",
                            "icon: brisel-status-green-light"));
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(DiskAppearance, OnlyLogsADiskOfAnotherFileSystem) {
    appear(diskOfKind("apfs"));
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
    EXPECT_TRUE(manager().volumes().empty());
}

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

TEST_F(DiskAppearance, OnlyLogsADiskWithoutAVolumeKind) {
    auto disk = ntfsDisk("Data");
    disk.description.volumeKind.reset();
    appear(disk);
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared"));
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

TEST_F(DiskAppearance, WarnsInTwoLinesOfAKindInUpperCase) {
    appear(diskOfKind("NTFS"));
    const auto lines = newLogLines();
    EXPECT_THAT(lines,
                ElementsAre("disk disk4s1 appeared",
                            R"(Warning: The Volume Kind of "Data" is not "ntfs" but "NTFS")",
                            " -> Brisel will try its best to remount r/w but might fail because of "
                            "incompatibility. Please make sure to remove any third-party "
                            "extension."));
    EXPECT_THAT(labels(), ElementsAre("Data"));
}

TEST_F(DiskAppearance, AcceptsAKindThatContainsNTFSInAnyCase) {
    appear(diskOfKind("vendor_NtFs_driver"));
    EXPECT_THAT(
        newLogLines(),
        Contains(R"(Warning: The Volume Kind of "Data" is not "ntfs" but "vendor_NtFs_driver")"));
    EXPECT_THAT(labels(), ElementsAre("Data"));
}

TEST_F(DiskAppearance, DoesNotWarnOfTheExactKind) {
    appear(ntfsDisk("Data"));
    EXPECT_THAT(newLogLines(), ElementsAre("disk disk4s1 appeared"));
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

TEST_F(DiskAppearance, RemountsAReadOnlyVolumeOnTheListWithoutAPrompt) {
    storeAutomountList({OtherUUID, SomeUUID});
    appear(ntfsDisk("Data", SomeUUID));
    const auto lines = newLines();
    ASSERT_GE(lines.size(), 4U);
    EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 4),
                ElementsAre("log: disk disk4s1 appeared", busyMenuLine(),
                            "icon: brisel-status-orange-light", "unmount: disk4s1"));
    EXPECT_THAT(lines, Not(Contains(StartsWith("permission:"))));
    EXPECT_TRUE(volume()->writable());
}

TEST_F(DiskAppearance, NeverRemountsAVolumeThatIsWritableAlready) {
    storeAutomountList({SomeUUID});
    auto disk = ntfsDisk("Data", SomeUUID);
    disk.writable = true;
    appear(disk);
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 appeared",
                                        menuLine("show Data in Finder | unmount | remove all "
                                                 "extended attributes | mount manually | ---"),
                                        "icon: brisel-status-blue-light"));
    EXPECT_TRUE(volume()->writable());
}

TEST_F(DiskAppearance, CountsAVolumeWithoutAPathAsReadOnly) {
    storeAutomountList({SomeUUID});
    auto disk = ntfsDisk("Data", SomeUUID);
    disk.description.volumePath.reset();
    disk.writable = true;
    appear(disk);
    EXPECT_FALSE(volume()->writable());
    EXPECT_THAT(newLines(), Contains("unmount: disk4s1"));
}

TEST_F(DiskAppearance, DoesNotRebuildTheMenuWhereTheRemountFindsNoDisk) {
    storeAutomountList({SomeUUID});
    auto disk = ntfsDisk("Data", SomeUUID);
    disk.description.mediaBSDName.reset();
    diskAppeared(manager(), {.bsdName = "disk4s1"}, disk.description);
    EXPECT_THAT(newLines(), Not(Contains(StartsWith("menu:"))));
    EXPECT_EQ(person.alertsSeen.size(), 1U);
    EXPECT_EQ(manager().volumes().size(), 1U);
}

TEST_F(DiskAppearance, RecordsAnEarlierRunsMountWithoutItsPath) {
    auto disk = ntfsDisk("Data", SomeUUID);
    disk.description.volumePath.emplace("/Users/user/.brisel/Data");
    disk.writable = true;
    mac.fileSystem.makeFolder("/Users/user/.brisel/Data");
    storeAutomountList({SomeUUID});
    appear(disk);
    EXPECT_TRUE(volume()->writable());
    EXPECT_FALSE(volume()->volumePath());
    mac.diskArbitration.detach("disk4s1");
    turn();
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel/Data"));
    EXPECT_TRUE(manager().volumes().empty());
}

}  // namespace
}  // namespace brisel::tests
