// A read-write remount: its triggers, its records, and its ends without a disk.
// SPDX-License-Identifier: MIT
#include "mounting/Remount.h"

#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

constexpr const char* NotMountedText =
    "text: The volume Data is not mounted currently at the specified path. Please remove and "
    "re-attach the device.";

class Remount : public RunningProgram {
  protected:
    /// Remounts disk4s1, whose description changes before its unmount completes.
    template <typename Change>
    void remountWhile(const Change& change) {
        mac.diskArbitration.hold();
        manager().remountVolumeNamed("disk4s1");
        auto changed = mac.diskArbitration.properties("disk4s1");
        change(changed.description);
        mac.diskArbitration.change("disk4s1", changed);
        forgetLines();
        mac.diskArbitration.release();
        turn();
    }
};

TEST_F(Remount, AsksForTheDiskOfTheRecordsDescription) {
    attachQuietly("disk4s1", "Data");
    changeDiskData(*volume(), [](auto& data) { data.mediaBSDName = "disk9s9"; });
    manager().remountVolumeNamed("disk4s1");
    EXPECT_THAT(newLines(), Contains("unmount: disk9s9"));
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

TEST_F(Remount, StopsSilentlyWhereNothingSaysThatTheVolumeIsMountable) {
    attachQuietly("disk4s1", "Data");
    remountWhile([](auto& description) { description.volumeMountable.reset(); });
    EXPECT_THAT(newLines(), ElementsAre("log: disk unmounted...", "log: Disk not mountable!"));
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

TEST_F(Remount, RecordsTheDescriptionOfTheUnmountedDisk) {
    attachQuietly("disk4s1", "Data");
    choose("re-mount Data");
    EXPECT_EQ(volume()->diskData().volumePath, std::nullopt);
    EXPECT_EQ(volume()->diskData().mediaBSDName, "disk4s1");
}

TEST_F(Remount, FallsBackToTheTextOfAMissingNameWhereTheRecordIsGone) {
    attachQuietly("disk4s1", "Data");
    remountWhile([this](auto& description) {
        manager().volumes().clear();
        description.volumeName.reset();
    });
    EXPECT_THAT(newLines(), Contains("mkdir: /Users/user/.brisel/(null)"));
}

TEST_F(Remount, RecordsTheTextOfAMissingDeviceNode) {
    attachQuietly("disk4s1", "Data");
    remountWhile([](auto& description) { description.mediaBSDName.reset(); });
    EXPECT_THAT(devices(), ElementsAre("disk4s1", "(null)"));
}

TEST_F(Remount, LeavesOtherVolumesAloneWhenItIsCancelled) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    person.whenPasswordIsAsked = [] { return platform::errAuthorizationCanceled; };
    choose("re-mount Data");
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
}

// Records that share a device are removed one by one, each time the first that is left.
TEST_F(Remount, RemovesTwoRecordsOfTheDeviceWhenTheToolFails) {
    attachQuietly("disk4s1", "Data");
    addRecord("disk4s1");
    const auto third = addRecord("disk4s1");
    mac.authorization.setToolEnd({.exitStatus = 1, .signal = 0, .output = ""});
    manager().remountVolumeNamed("disk4s1");
    turn();
    EXPECT_THAT(manager().volumes(), ElementsAre(third));
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
