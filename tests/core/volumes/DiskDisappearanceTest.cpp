// Handling of a disappeared disk and its mount point.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/DiskEvents.h"

namespace brisel::tests {
namespace {

constexpr const char* MountPoint = "/Users/user/.brisel/Data";

class DiskDisappearance : public RunningProgram {
  protected:
    void disappear() {
        forgetLines();
        mac.diskArbitration.detach("disk4s1");
        turn();
    }

    void attachRemounted() {
        attachQuietly("disk4s1", "Data", SomeUUID);
        choose("re-mount Data");
        ASSERT_TRUE(volume()->volumePath());
    }
};

TEST_F(DiskDisappearance, DropsTheRecordAndRebuildsTheMenu) {
    attachQuietly("disk4s1", "Data");
    disappear();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared", emptyMenuLine(),
                                        "icon: brisel-status-grey-light"));
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(DiskDisappearance, DeletesTheEmptyMountPoint) {
    attachRemounted();
    disappear();
    EXPECT_THAT(newLines(),
                ElementsAre("log: disk disk4s1 disappeared", std::string("delete: ") + MountPoint,
                            emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_FALSE(mac.fileSystem.hasFolder(MountPoint));
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel"));
}

TEST_F(DiskDisappearance, EndsTheBusyState) {
    attachRemounted();
    manager().setInProgress(true);
    disappear();
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(DiskDisappearance, LeavesAFolderThatHoldsSomething) {
    attachRemounted();
    mac.diskArbitration.detach("disk4s1");
    mac.fileSystem.makeFile(std::string(MountPoint) + "/.hidden");
    forgetLines();
    turn();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared", emptyMenuLine(),
                                        "icon: brisel-status-grey-light"));
    EXPECT_TRUE(mac.fileSystem.hasFolder(MountPoint));
}

TEST_F(DiskDisappearance, KeepsTheRecordWhereTheFolderIsGone) {
    attachRemounted();
    mac.fileSystem.removeFolder(MountPoint);
    manager().setInProgress(true);
    disappear();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared",
                                        "log: Unable to list folder: No such file or directory, "
                                        "reason: (null)"));
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(DiskDisappearance, KeepsTheRecordWhereTheFolderCannotBeDeleted) {
    attachRemounted();
    mac.fileManager.fail(platform::simulated::FileManager::Call::Delete,
                         {.localizedDescription = "Not now", .localizedFailureReason = "Busy"});
    disappear();
    EXPECT_THAT(newLines(),
                ElementsAre("log: disk disk4s1 disappeared", std::string("delete: ") + MountPoint,
                            "log: Unable to delete folder: Not now, reason: Busy"));
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
}

TEST_F(DiskDisappearance, IgnoresADeviceWithoutARecord) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    manager().volumes().erase(manager().volumes().begin());
    manager().setInProgress(true);
    disappear();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared"));
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(DiskDisappearance, DropsTheFirstOfTwoRecordsOnly) {
    attachQuietly("disk4s1", "Data");
    const auto twin = NTFSVolume::initWithVolume({});
    twin->setDeviceNode("disk4s1");
    twin->setLabel("Twin");
    manager().volumes().push_back(twin);
    disappear();
    EXPECT_THAT(labels(), ElementsAre("Twin"));
}

TEST_F(DiskDisappearance, ComparesTheVolumeKindExactly) {
    for (const auto* const kind : {"NTFS", "Ntfs", "vendor_ntfs"}) {
        auto disk = ntfsDisk("Data");
        disk.description.volumeKind = kind;
        mac.diskArbitration.attach("disk4s1", disk);
        turn();
        disappear();
        EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared")) << kind;
        EXPECT_THAT(devices(), ElementsAre("disk4s1")) << kind;
    }
}

TEST_F(DiskDisappearance, IgnoresADiskThatIsNotMountableOrOfNoKind) {
    attachQuietly("disk4s1", "Data");
    auto description = mac.diskArbitration.properties("disk4s1").description;
    description.volumeMountable.reset();
    diskDisappeared(manager(), {.bsdName = "disk4s1"}, description);
    description.volumeMountable = true;
    description.volumeKind.reset();
    diskDisappeared(manager(), {.bsdName = "disk4s1"}, description);
    EXPECT_THAT(newLines(),
                ElementsAre("log: disk disk4s1 disappeared", "log: disk disk4s1 disappeared"));
    EXPECT_EQ(manager().volumes().size(), 1U);
}

class EmptyMountFolder : public RunningProgram {
  protected:
    bool remove() { return removeEmptyMountFolder(mac.platform, platform::FileURL(MountPoint)); }
};

TEST_F(EmptyMountFolder, IsDeletedAlone) {
    mac.fileSystem.makeFolder(MountPoint);
    EXPECT_TRUE(remove());
    EXPECT_THAT(mac.fileSystem.foldersFrom("/Users/user/.brisel"),
                ElementsAre("/Users/user/.brisel"));
}

TEST_F(EmptyMountFolder, StaysWhereAFolderIsInIt) {
    mac.fileSystem.makeFolder(std::string(MountPoint) + "/inner");
    EXPECT_TRUE(remove());
    EXPECT_THAT(newLines(), ElementsAre());
    EXPECT_TRUE(mac.fileSystem.hasFolder(std::string(MountPoint) + "/inner"));
}

TEST_F(EmptyMountFolder, IsNotDeletedAfterAListingThatFailed) {
    mac.fileSystem.makeFolder(MountPoint);
    mac.fileManager.fail(platform::simulated::FileManager::Call::List,
                         {.localizedDescription = "Denied", .localizedFailureReason = "Rights"});
    EXPECT_FALSE(remove());
    EXPECT_THAT(newLines(), ElementsAre("log: Unable to list folder: Denied, reason: Rights"));
    EXPECT_TRUE(mac.fileSystem.hasFolder(MountPoint));
}

}  // namespace
}  // namespace brisel::tests
