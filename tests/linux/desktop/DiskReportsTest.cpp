// The disks that DiskArbitration reports, as UDisks2's objects come, change and go.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "platform/headless/DiskArbitration.h"
#include "platform/headless/DiskDescriptions.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/SignalBacklog.h"
#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/desktop/FakeDisks.h"

namespace brisel::platform::headless {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakeDisks;

class DiskReports : public testing::Test {
  protected:
    DiskReports() {
        machine_.run([this] { disks_ = std::make_unique<FakeDisks>(); });
        arbitration_.createSession();
        appeared_ = arbitration_.registerDiskAppearedCallback(
            [this](const auto& disk, const auto& is) { note("appeared", disk, is); });
        disappeared_ = arbitration_.registerDiskDisappearedCallback(
            [this](const auto& disk, const auto& was) { note("disappeared", disk, was); });
        tests::turnUntil(
            [this] { return arbitration_.copyDescription(Volume).volumeKind.has_value(); });
    }
    ~DiskReports() override {
        machine_.run([this] { disks_.reset(); });
    }

    void start() {
        arbitration_.scheduleWithRunLoop();
        tests::turnUntil([this] { return !events_.empty(); });
        events_.clear();
    }
    /// Changes the disk and waits for a later change of another device, so for both.
    template <typename Change>
    void change(const Change& change) {
        machine_.run([&] { change(*disks_); });
        ++changes_;
        machine_.run([this] { disks_->relabelOther(std::to_string(changes_)); });
        tests::turnUntil([this] {
            return arbitration_.copyDescription(Other).volumeName == std::to_string(changes_);
        });
    }
    void note(const std::string& event, const Disk& disk, const DiskDescription& description) {
        const auto& path = description.volumePath;
        events_.push_back(event + " " + disk.bsdName + (path ? " " + path->path() : ""));
    }

    const Disk Volume{.bsdName = "sdz1"};
    const Disk Other{.bsdName = "sdy1"};
    tests::TestLoop loop_;
    tests::RecordedLog log_;
    tests::OtherProgram machine_;
    std::unique_ptr<FakeDisks> disks_;
    DiskArbitration arbitration_{log_};
    Subscription appeared_;
    Subscription disappeared_;
    std::vector<std::string> events_;
    int changes_ = 0;
};

TEST_F(DiskReports, StartOnceTheSessionIsScheduled) {
    loop_.turn();
    EXPECT_THAT(events_, IsEmpty());
    arbitration_.scheduleWithRunLoop();
    EXPECT_THAT(events_, IsEmpty());
    loop_.turn();
    EXPECT_THAT(events_, ElementsAre("appeared sdz1"));
}

TEST_F(DiskReports, TakeAnotherVolumeOnTheDeviceForAnotherDisk) {
    start();
    change([](auto& disks) { disks.becomeVolume("ntfs", "FEDCBA9876543210"); });
    EXPECT_THAT(events_, ElementsAre("disappeared sdz1", "appeared sdz1"));
}

TEST_F(DiskReports, LeaveOutADeviceWithoutAVolume) {
    start();
    change([](auto& disks) { disks.becomeVolume("", ""); });
    EXPECT_THAT(events_, ElementsAre("disappeared sdz1"));
    change([](auto& disks) { disks.becomeVolume("ntfs", "0123456789ABCDEF"); });
    EXPECT_THAT(events_, ElementsAre("disappeared sdz1", "appeared sdz1"));
}

TEST_F(DiskReports, RenewADiskThatAnotherProgramMountsAndDropItWhenItIsUnmounted) {
    start();
    change([](auto& disks) { disks.setMounted("/media/other/Data"); });
    EXPECT_THAT(events_, ElementsAre("disappeared sdz1", "appeared sdz1 /media/other/Data"));
    change([](auto& disks) { disks.setMounted("/media/other/Data"); });
    EXPECT_EQ(events_.size(), 2U);
    events_.clear();
    change([](auto& disks) { disks.setUnmounted(); });
    EXPECT_THAT(events_, ElementsAre("disappeared sdz1 /media/other/Data"));
}

TEST_F(DiskReports, PassOverMountsOfTheMountTool) {
    start();
    change([](auto& disks) { disks.setMounted("/run/brisel-x7Ghq2/volume"); });
    EXPECT_THAT(events_, IsEmpty());
    change([](auto& disks) {
        disks.setMounted(mountFolderIn(FileURL(g_get_home_dir()).path()) + "/Data");
    });
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(DiskReports, PassOverTheProgramsOwnUnmount) {
    start();
    change([](auto& disks) { disks.setMounted("/media/other/Data"); });
    events_.clear();
    bool done = false;
    arbitration_.unmount(Volume, [&](const Disk&, const auto&) { done = true; });
    tests::turnUntil([&done] { return done; });
    change([](auto& /*disks*/) {});
    EXPECT_THAT(events_, IsEmpty());
}

TEST_F(DiskReports, AreFoldedWhileTheMainThreadIsBlocked) {
    start();
    constexpr int Pairs = 1000;
    constexpr std::size_t Most = 2 * SignalBacklog::Limit;
    machine_.run([this] {
        for (int pair = 0; pair < Pairs; ++pair) {
            disks_->remove();
            disks_->add();
        }
        disks_->becomeVolume("ntfs", "FEDCBA9876543210");
        disks_->waitUntilRead();
    });
    tests::turnUntil([this] {
        return arbitration_.copyDescription(Volume).volumeUUID == uuidText("FEDCBA9876543210");
    });
    EXPECT_LE(events_.size(), Most);
    EXPECT_EQ(events_.back(), "appeared sdz1");
    change([](auto& disks) { disks.remove(); });
    EXPECT_EQ(events_.back(), "disappeared sdz1");
    EXPECT_THAT(log_.entries(), IsEmpty());
}

}  // namespace

}  // namespace brisel::platform::headless
