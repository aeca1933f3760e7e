// The automount menu actions, and dropping an unmounted volume.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/VolumeListHelper.h"

namespace brisel::tests {
namespace {

class AutomountAction : public RunningProgram {};

TEST_F(AutomountAction, OnlyLogsAVolumeWithoutUUID) {
    attachWritable("disk4s1", "Data");
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
        const auto record = addRecord("disk4s1");
        record->setVolumePath(platform::FileURL(path));
        return record;
    }
};

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
