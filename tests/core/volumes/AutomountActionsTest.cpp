// The automount menu actions, and dropping an unmounted volume.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/VolumeListHelper.h"

namespace brisel::tests {
namespace {

const std::string GroupStart = "show Data in Finder | unmount | remove all extended attributes | ";

class AutomountAction : public RunningProgram {
  protected:
    void attachWritable(const std::string& uuid) {
        auto disk = ntfsDisk("Data", uuid);
        disk.writable = true;
        mac.diskArbitration.attach("disk4s1", disk);
        turn();
        forgetLines();
    }
};

TEST_F(AutomountAction, SavesTheVolumeAndRebuildsTheMenu) {
    attachWritable(SomeUUID);
    choose("mount automatically");
    EXPECT_THAT(
        newLines(),
        ElementsAre("log: List count: 1", std::string("default: volumeList = (") + SomeUUID + ")",
                    "synchronize", menuLine(GroupStart + "mount manually | ---"),
                    "icon: brisel-status-blue-light"));
}

TEST_F(AutomountAction, UnsavesTheVolumeAndRebuildsTheMenu) {
    storeAutomountList({OtherUUID, SomeUUID});
    attachWritable(SomeUUID);
    choose("mount manually");
    EXPECT_THAT(newLines(),
                ElementsAre(std::string("default: volumeList = (") + OtherUUID + ")", "synchronize",
                            menuLine(GroupStart + "mount automatically | ---"),
                            "icon: brisel-status-blue-light"));
}

TEST_F(AutomountAction, TakesEffectAtTheNextAppearance) {
    attachWritable(SomeUUID);
    choose("mount automatically");
    EXPECT_THAT(newLines(), Not(Contains("unmount: disk4s1")));
    mac.diskArbitration.detach("disk4s1");
    attachNTFS("disk7s1", "Elsewhere", SomeUUID);
    turn();
    EXPECT_THAT(newLines(), Contains("unmount: disk7s1"));
}

TEST_F(AutomountAction, OnlyLogsAVolumeWithoutUUID) {
    attachWritable("");
    manager().saveVolumeForAutomount(senderFor(volume()));
    manager().unsaveVolumeForAutomount(senderFor(volume()));
    EXPECT_THAT(newLines(),
                ElementsAre("log: Cannot save volume for autmount because volume.uuid is nil.",
                            "log: Cannot unsave volume for autmount because volume.uuid is nil."));
    EXPECT_EQ(VolumeListHelper::obtain(mac.userDefaults), nullptr);
}

TEST_F(AutomountAction, OnlyLogsASenderWithoutAVolume) {
    manager().saveVolumeForAutomount(platform::MenuItem());
    manager().unsaveVolumeForAutomount(platform::MenuItem());
    EXPECT_EQ(newLines().size(), 2U);
}

class RemovalFromTheList : public RunningProgram {
  protected:
    std::shared_ptr<NTFSVolume> mountedAt(const std::string& path) {
        const auto record = NTFSVolume::initWithVolume({});
        record->setDeviceNode("disk4s1");
        record->setVolumePath(platform::FileURL(path));
        manager().volumes().push_back(record);
        return record;
    }
};

TEST_F(RemovalFromTheList, RebuildsTheMenuBeforeItLooksAtTheFolder) {
    const auto record = mountedAt("/Users/user/.brisel/Data");
    manager().removeVolumeFromList(record);
    EXPECT_THAT(newLines(), ElementsAre(emptyMenuLine(), "icon: brisel-status-grey-light",
                                        "log: Unable to list folder: No such file or directory, "
                                        "reason: (null)"));
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(RemovalFromTheList, OnlyLogsAFolderThatCannotBeDeleted) {
    const auto record = mountedAt("/Users/user/.brisel/Data");
    mac.fileSystem.makeFolder("/Users/user/.brisel/Data");
    mac.fileManager.fail(platform::simulated::FileManager::Call::Delete,
                         {.localizedDescription = "Busy", .localizedFailureReason = {}});
    manager().removeVolumeFromList(record);
    EXPECT_THAT(newLogLines(), ElementsAre("Unable to delete folder: Busy, reason: (null)"));
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(RemovalFromTheList, LeavesAFolderWithEntriesSilently) {
    const auto record = mountedAt("/Users/user/.brisel/Data");
    mac.fileSystem.makeFile("/Users/user/.brisel/Data/file");
    manager().removeVolumeFromList(record);
    EXPECT_THAT(newLogLines(), ElementsAre());
    EXPECT_TRUE(mac.fileSystem.hasFolder("/Users/user/.brisel/Data"));
}

TEST_F(RemovalFromTheList, LeavesTheBusyStateAndTheAutomountListAlone) {
    storeAutomountList({SomeUUID});
    const auto record = mountedAt("/Users/user/.brisel/Data");
    record->setUuid(SomeUUID);
    manager().setInProgress(true);
    manager().removeVolumeFromList(record);
    EXPECT_TRUE(manager().inProgress());
    EXPECT_TRUE(VolumeListHelper::contains(mac.userDefaults, SomeUUID));
}

TEST_F(RemovalFromTheList, TakesThatVeryRecord) {
    const auto one = mountedAt("/a");
    const auto twin = mountedAt("/a");
    manager().removeVolumeFromList(twin);
    EXPECT_THAT(manager().volumes(), ElementsAre(one));
}

}  // namespace
}  // namespace brisel::tests
