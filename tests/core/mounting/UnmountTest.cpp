// Unmounting a volume from the menu.
// SPDX-License-Identifier: MIT
#include "mounting/Unmount.h"

#include <algorithm>

#include "app/UnplugNotice.h"
#include "platform/common/Bundle.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class Unmount : public RunningProgram {
  protected:
    void attachWritable(const std::string& device, const std::string& name) {
        auto disk = ntfsDisk(name, SomeUUID);
        disk.writable = true;
        mac.diskArbitration.attach(device, disk);
        turn();
        forgetLines();
    }
};

TEST_F(Unmount, DropsTheVolumeFoundByItsDescriptionsPath) {
    attachWritable("disk4s1", "Data");
    choose("unmount");
    EXPECT_THAT(newLines(),
                ElementsAre("unmount: disk4s1", emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(Unmount, DropsARemountedVolumeAndItsMountPoint) {
    attachQuietly("disk4s1", "Data");
    choose("re-mount Data");
    forgetLines();
    choose("unmount");
    EXPECT_THAT(newLines(),
                ElementsAre("unmount: disk4s1", emptyMenuLine(), "icon: brisel-status-grey-light",
                            "delete: /Users/user/.brisel/Data"));
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(mac.fileSystem.hasFolder("/Users/user/.brisel/Data"));
}

TEST_F(Unmount, PostsANotificationOnceTheVolumeIsUnmounted) {
    std::vector<std::string> posted;
    const auto observer = mac.notificationCenter.addObserver(
        NTFSVolumeDidUnmountNotification, [&posted](const void* object) {
            const UnplugNotice notice(platform::common::Bundle(),
                                      *static_cast<const NTFSVolume*>(object));
            posted = {notice.title, notice.body};
        });
    attachWritable("disk4s1", "Data");
    mac.diskArbitration.refuseUnmount("disk4s1", platform::DAReturn::Busy);
    choose("unmount");
    EXPECT_THAT(posted, ElementsAre());
    choose("unmount");
    EXPECT_THAT(posted, ElementsAre("Data unmounted", "You may unplug the device now."));
}

TEST_F(Unmount, PrefersThePathOfItsOwnMount) {
    attachWritable("disk4s1", "Data");
    attachWritable("disk5s1", "Other");
    volume(0)->setVolumePath(platform::FileURL("/Volumes/Other"));
    manager().unmountVolume(senderFor(volume(0)));
    EXPECT_THAT(newLines(), ElementsAre("unmount: disk5s1"));
}

TEST_F(Unmount, DoesNotBeginABusyStateButEndsOne) {
    attachWritable("disk4s1", "Data");
    manager().unmountVolume(senderFor(volume()));
    EXPECT_FALSE(manager().inProgress());
    manager().setInProgress(true);
    turn();
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(Unmount, RebuildsTheMenuWhileItIsStillBusy) {
    attachWritable("disk4s1", "Data");
    manager().unmountVolume(senderFor(volume()));
    manager().setInProgress(true);
    turn();
    EXPECT_THAT(newLines(), ElementsAre("unmount: disk4s1", busyMenuLine(),
                                        "icon: brisel-status-orange-light"));
}

TEST_F(Unmount, OnlyLogsAVolumeThatIsNotMountedAtItsPath) {
    attachWritable("disk4s1", "My Data");
    const auto record = volume();
    mac.diskArbitration.change("disk4s1", {});
    manager().setInProgress(true);
    manager().unmountVolume(senderFor(record));
    turn();
    EXPECT_THAT(newLines(),
                ElementsAre("log: Unmount failed for volume at URL file:///Volumes/My%20Data/"));
    EXPECT_TRUE(manager().inProgress());
    EXPECT_EQ(manager().volumes().size(), 1U);
}

TEST_F(Unmount, OnlyLogsAVolumeWithoutAnyPath) {
    manager().unmountVolume(senderFor(NTFSVolume::initWithVolume({})));
    EXPECT_THAT(newLines(), ElementsAre("log: Unmount failed for volume at URL (null)"));
}

TEST_F(Unmount, ReportsARefusalAndKeepsTheVolume) {
    attachWritable("disk4s1", "Data");
    mac.diskArbitration.refuseUnmount("disk4s1", 0xF8DA0008);
    manager().setInProgress(true);
    choose("unmount");
    EXPECT_THAT(newLines(),
                ElementsAre("unmount: disk4s1", "icon: brisel-status-red-light",
                            "log: kDAReturnNotPermitted for volume disk4s1",
                            "alert: Volume \"Data\" not unmountable",
                            "text: The volume is not unmountable. Probably it is still used by "
                            "another application.",
                            "buttons: OK",
                            menuLine("show Data in Finder | unmount | remove all extended "
                                     "attributes | mount automatically | ---"),
                            "icon: brisel-status-blue-light"));
    EXPECT_FALSE(manager().inProgress());
    EXPECT_EQ(manager().volumes().size(), 1U);
}

TEST_F(Unmount, ChangesNothingForARecordThatIsGone) {
    attachWritable("disk4s1", "Data");
    attachWritable("disk5s1", "Other");
    const auto record = volume();
    manager().volumes().erase(manager().volumes().begin());
    manager().setInProgress(true);
    manager().unmountVolume(senderFor(record));
    turn();
    EXPECT_THAT(newLines(), ElementsAre("unmount: disk4s1"));
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(Unmount, DropsEveryRecordOfTheDisk) {
    attachWritable("disk4s1", "Data");
    attachWritable("disk5s1", "Other");
    for (int copies = 0; copies < 3; ++copies) {
        const auto twin = NTFSVolume::initWithVolume({});
        twin->setDeviceNode("disk4s1");
        twin->setLabel("Twin");
        manager().volumes().push_back(twin);
    }
    forgetLines();
    manager().unmountVolume(senderFor(volume()));
    turn();
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    const auto lines = newLines();
    EXPECT_EQ(
        std::ranges::count_if(lines, [](const auto& line) { return line.starts_with("menu:"); }),
        4);
}

TEST_F(Unmount, LeavesTheAutomountListAlone) {
    storeAutomountList({SomeUUID});
    attachWritable("disk4s1", "Data");
    choose("unmount");
    EXPECT_THAT(mac.userDefaults.stored(),
                Contains(std::string("volumeList = (") + SomeUUID + ")"));
}

TEST_F(Unmount, CompletesForAnUnknownDisk) {
    attachWritable("disk4s1", "Data");
    unmountDidFinish(manager(), {.bsdName = "disk9"}, std::nullopt);
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
    EXPECT_THAT(newLines(), ElementsAre());
}

}  // namespace
}  // namespace brisel::tests
