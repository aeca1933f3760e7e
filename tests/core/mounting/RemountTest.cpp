// The start of a read-write remount: its triggers, and its ends without a disk.
// SPDX-License-Identifier: MIT
#include "mounting/Remount.h"

#include <algorithm>

#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

constexpr const char* NotMountedText =
    "text: The volume Data is not mounted currently at the specified path. Please remove and "
    "re-attach the device.";

class Remount : public RunningProgram {};

TEST_F(Remount, UnmountsTheVolumeWithTheBusyStateShown) {
    attachQuietly("disk4s1", "Data");
    manager().remountVolume(senderFor(volume()));
    EXPECT_THAT(newLines(), ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light",
                                        "unmount: disk4s1"));
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(Remount, TakesTheFirstVolumeOfAName) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    manager().remountVolumeNamed("disk5s1");
    EXPECT_THAT(newLines(), Contains("unmount: disk5s1"));
}

TEST_F(Remount, AsksForTheDiskOfTheRecordsDescription) {
    attachQuietly("disk4s1", "Data");
    changeDiskData(*volume(), [](auto& data) { data.mediaBSDName = "disk9s9"; });
    manager().remountVolumeNamed("disk4s1");
    EXPECT_THAT(newLines(), Contains("unmount: disk9s9"));
}

TEST_F(Remount, EndsInAnAlertForANameThatNoRecordHas) {
    bool busyWhileTheAlertWasUp = false;
    person.whenAlertShows = [&](const auto&) {
        busyWhileTheAlertWasUp = manager().inProgress();
        return 0;
    };
    manager().remountVolumeNamed("disk9s9");
    EXPECT_THAT(newLines(),
                ElementsAre("icon: brisel-status-red-light", "alert: Volume not mounted",
                            "text: The volume (null) is not mounted currently at the "
                            "specified path. Please remove and re-attach the device.",
                            "buttons: OK"));
    EXPECT_TRUE(busyWhileTheAlertWasUp);
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(Remount, EndsInAnAlertForNoNameAtAll) {
    attachQuietly("disk4s1", "Data");
    manager().remountVolumeNamed(std::nullopt);
    EXPECT_THAT(newLines(), Contains("alert: Volume not mounted"));
}

TEST_F(Remount, NamesTheVolumeWithoutADiskByItsLabel) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Data");
    changeDiskData(*volume(1), [](auto& data) { data.mediaBSDName.reset(); });
    manager().remountVolume(senderFor(volume(1)));
    EXPECT_THAT(newLines(), Contains(StartsWith("text: The volume Data-disk5s1 is not mounted")));
}

TEST_F(Remount, EndsInAnAlertWithoutARebuildWhereThereIsNoDisk) {
    bool busyWhileTheAlertWasUp = false;
    person.whenAlertShows = [&](const auto&) {
        busyWhileTheAlertWasUp = manager().inProgress();
        return 0;
    };
    attachQuietly("disk4s1", "Data");
    changeDiskData(*volume(), [](auto& data) { data.mediaBSDName.reset(); });
    manager().remountVolume(senderFor(volume()));
    turn();
    EXPECT_THAT(newLines(),
                ElementsAre("icon: brisel-status-red-light", "alert: Volume not mounted",
                            NotMountedText, "buttons: OK"));
    EXPECT_TRUE(busyWhileTheAlertWasUp);
    EXPECT_FALSE(manager().inProgress());
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
}

TEST_F(Remount, ReportsARefusedUnmountAndKeepsTheRecord) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.refuseUnmount("disk4s1", 0xF8DA0002);
    choose("re-mount Data");
    EXPECT_THAT(newLines(),
                ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light", "unmount: disk4s1",
                            "log: disk unmounted...", "icon: brisel-status-red-light",
                            "log: kDAReturnBusy for volume disk4s1",
                            "alert: Volume \"Data\" not unmountable",
                            "text: The volume is not unmountable. Probably it is still used by "
                            "another application.",
                            "buttons: OK",
                            "menu: re-mount Data | Start at Login | --- | About Brisel | --- | "
                            "Quit Brisel",
                            "icon: brisel-status-green-light"));
    EXPECT_FALSE(manager().inProgress());
    EXPECT_FALSE(volume()->writable());
}

TEST_F(Remount, StopsSilentlyWhereTheVolumeIsNoLongerMountable) {
    attachQuietly("disk4s1", "Data");
    person.whenAlertShows = [](const auto&) { return 0; };
    mac.diskArbitration.hold();
    choose("re-mount Data");
    auto changed = mac.diskArbitration.properties("disk4s1");
    changed.description.volumeMountable = false;
    mac.diskArbitration.change("disk4s1", changed);
    forgetLines();
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(newLines(), ElementsAre("log: disk unmounted...", "log: Disk not mountable!"));
    EXPECT_TRUE(manager().inProgress());
    EXPECT_THAT(devices(), ElementsAre("disk4s1"));
}

TEST_F(Remount, StopsSilentlyWhereNothingSaysThatTheVolumeIsMountable) {
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.hold();
    choose("re-mount Data");
    auto changed = mac.diskArbitration.properties("disk4s1");
    changed.description.volumeMountable.reset();
    mac.diskArbitration.change("disk4s1", changed);
    forgetLines();
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(newLines(), ElementsAre("log: disk unmounted...", "log: Disk not mountable!"));
}

TEST_F(Remount, IsNotRefusedWhileAnotherRuns) {
    attachQuietly("disk4s1", "Data");
    manager().remountVolumeNamed("disk4s1");
    manager().remountVolumeNamed("disk4s1");
    EXPECT_EQ(std::ranges::count(newLines(), "unmount: disk4s1"), 2);
}

TEST_F(Remount, IsStillPossibleForARecordThatIsGone) {
    attachQuietly("disk4s1", "Data");
    const auto record = volume();
    manager().volumes().clear();
    manager().remountVolume(senderFor(record));
    turn();
    EXPECT_THAT(labels(), ElementsAre("Data"));
    EXPECT_TRUE(volume()->writable());
}

/// Disk Arbitration that completes each unmount and mount before the request returns.
class HastyDiskArbitration final : public platform::DiskArbitration {
  public:
    explicit HastyDiskArbitration(platform::simulated::Mac& mac) : mac_(mac) {}

    void createSession() override { disks().createSession(); }
    platform::Subscription registerDiskAppearedCallback(DiskCallback callback) override {
        return disks().registerDiskAppearedCallback(std::move(callback));
    }
    platform::Subscription registerDiskDisappearedCallback(DiskCallback callback) override {
        return disks().registerDiskDisappearedCallback(std::move(callback));
    }
    void scheduleWithRunLoop() override {}
    std::optional<platform::Disk> diskFromBSDName(const std::optional<std::string>& name) override {
        return disks().diskFromBSDName(name);
    }
    std::optional<platform::Disk> diskFromVolumePath(
        const std::optional<platform::FileURL>& path) override {
        return disks().diskFromVolumePath(path);
    }
    platform::DiskDescription copyDescription(const platform::Disk& disk) override {
        return disks().copyDescription(disk);
    }
    void unmount(const platform::Disk& disk, Completion completion) override {
        disks().unmount(disk, std::move(completion));
        mac_.mainLoop.turnUntilIdle();
    }
    void mountWithArguments(const platform::Disk& disk, const std::vector<std::string>& arguments,
                            Completion completion) override {
        disks().mountWithArguments(disk, arguments, std::move(completion));
        mac_.mainLoop.turnUntilIdle();
    }

  private:
    platform::simulated::DiskArbitration& disks() { return mac_.diskArbitration; }
    platform::simulated::Mac& mac_;
};

class HastyRemount : public testing::TestWithParam<bool>, public SimulatedProgram {};

TEST_P(HastyRemount, SucceedsWhereRequestsCompleteBeforeTheyReturn) {
    mac.systemVersion.setMacOS12OrLater(GetParam());
    HastyDiskArbitration hasty(mac);
    NTFSVolumeManager made(platformWith(mac.platform, {.diskArbitration = &hasty}));
    attachNTFS("disk4s1", "Data");
    turn();
    made.remountVolumeNamed("disk4s1");
    ASSERT_EQ(made.volumes().size(), 1U);
    EXPECT_TRUE(made.volumes()[0]->writable());
    EXPECT_FALSE(made.inProgress());
}

INSTANTIATE_TEST_SUITE_P(OfEachSystem, HastyRemount, testing::Bool());

}  // namespace
}  // namespace brisel::tests
