// Mounts through UDisks2: options, drivers and errors.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <fstream>
#include <memory>

#include "platform/headless/DiskArbitration.h"
#include "platform/headless/MountInfo.h"
#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/desktop/FakeDisks.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::headless {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using tests::FakeDisks;
using tests::turnUntil;

// Mount points on every Linux system; /proc is mounted read-write but takes no file.
constexpr const char* Writable = "/dev/shm";
constexpr const char* Unwritable = "/proc";
constexpr const char* Refused = "org.freedesktop.UDisks2.Error.OptionNotPermitted";
constexpr const char* Failed = "org.freedesktop.UDisks2.Error.Failed";
// The error of a GIO service whose own operation was cancelled.
constexpr const char* Cancelled =
    "org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19";
constexpr const char* NotAuthorized = "org.freedesktop.UDisks2.Error.NotAuthorized";

class AMount : public testing::Test {
  protected:
    AMount() {
        machine_.run([this] { disks_ = std::make_unique<FakeDisks>(); });
        arbitration_.createSession();
        turnUntil([this] { return arbitration_.copyDescription(Volume).volumeKind == "ntfs"; });
    }
    ~AMount() override {
        machine_.run([this] { disks_.reset(); });
    }
    std::optional<Dissenter> mount(const std::vector<std::string>& arguments = {"rw", "noatime",
                                                                                "nobrowse"}) {
        std::optional<std::optional<Dissenter>> outcome;
        arbitration_.mountWithArguments(Volume, arguments, [&](const Disk&, const auto& dissenter) {
            log_.write("completed");
            outcome = dissenter;
        });
        turnUntil([&outcome] { return outcome.has_value(); });
        return *outcome;
    }

    const Disk Volume{.bsdName = "sdz1"};
    tests::TestLoop loop_;
    tests::RecordedLog log_;
    tests::TemporaryFolder folder_;
    /// Served by another thread, because this one blocks while it fetches the objects.
    tests::OtherProgram machine_;
    std::unique_ptr<FakeDisks> disks_;
    DiskArbitration arbitration_{log_};
};

class AWritableMount : public AMount {
  protected:
    void SetUp() override {
        if (currentMountState(Writable) != MountState::ReadWrite || access(Writable, W_OK) != 0)
            GTEST_SKIP() << Writable << " is no mount that can be written.";
    }
};

TEST_F(AWritableMount, LeavesTheVolumesLogAloneAndHasNoEmptyOption) {
    EXPECT_FALSE(mount().has_value());
    EXPECT_FALSE(mount({"auto"}).has_value());
    EXPECT_THAT(disks_->calls(),
                ElementsAre("mount rw,noatime,x-gvfs-hide,norecover ntfs", "mount norecover ntfs"));
}

TEST_F(AWritableMount, IsMadeByTheDriverThatIsThereOnEveryRelease) {
    using Release = FakeDisks::Release;
    using Drivers = FakeDisks::Drivers;
    struct Row {
        Release release;
        Drivers drivers;
        std::string mountedBy;
    };
    const std::array rows{
        Row{Release::V2_9, Drivers::Fuse, "ntfs"},     Row{Release::V2_9, Drivers::Kernel, "ntfs3"},
        Row{Release::V2_9, Drivers::Both, "ntfs3"},    Row{Release::V2_10, Drivers::Fuse, "ntfs"},
        Row{Release::V2_10, Drivers::Kernel, "ntfs3"}, Row{Release::V2_10, Drivers::Both, "ntfs"}};
    for (const auto& row : rows) {
        disks_->behaveAs(row.release, row.drivers);
        EXPECT_FALSE(mount().has_value());
        EXPECT_EQ(disks_->mountedBy(), row.mountedBy);
    }
}

TEST_F(AWritableMount, ReportsTheDiskAsGoneBeforeItCompletes) {
    const auto disappeared = arbitration_.registerDiskDisappearedCallback(
        [this](const Disk& disk, const auto&) { log_.write(disk.bsdName + " disappeared"); });
    arbitration_.scheduleWithRunLoop();
    auto appeared = false;
    const auto appearance = arbitration_.registerDiskAppearedCallback(
        [&appeared](const auto&, const auto&) { appeared = true; });
    turnUntil([&appeared] { return appeared; });
    EXPECT_FALSE(mount().has_value());
    const auto entries = log_.entries();
    ASSERT_GE(entries.size(), 2U);
    EXPECT_THAT((std::vector(entries.end() - 2, entries.end())),
                ElementsAre("sdz1 disappeared", "completed"));
}

TEST_F(AMount, IsRefusedWithoutADriver) {
    for (const auto release : {FakeDisks::Release::V2_9, FakeDisks::Release::V2_10}) {
        disks_->behaveAs(release, FakeDisks::Drivers::None);
        const auto dissenter = mount();
        ASSERT_TRUE(dissenter.has_value());
        EXPECT_EQ(dissenter->status, DAReturn::Error);
        EXPECT_EQ(disks_->calls().size(), 2U);
    }
}

// An error that does not depend on the driver ends the tries; otherwise the first one is returned.
TEST_F(AMount, IsRefusedWithTheErrorThatTellsMost) {
    struct Row {
        std::vector<std::string> errors;
        std::uint32_t status;
    };
    const std::array rows{Row{{Cancelled}, DAReturn::Error},
                          Row{{NotAuthorized}, DAReturn::NotPermitted},
                          Row{{Failed, NotAuthorized}, DAReturn::NotPermitted},
                          Row{{Refused, Failed}, DAReturn::BadArgument}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.errors.back());
        disks_->script(row.errors);
        const auto dissenter = mount();
        ASSERT_TRUE(dissenter.has_value());
        EXPECT_EQ(dissenter->status, row.status);
        EXPECT_EQ(disks_->calls().size(), row.errors.size());
        EXPECT_THAT(log_.entries(), testing::Contains(HasSubstr("Refused.")));
    }
}

TEST_F(AMount, ThatIsNotWritableIsUndone) {
    disks_->mountAt(Unwritable);
    const auto dissenter = mount();
    ASSERT_TRUE(dissenter.has_value());
    EXPECT_EQ(dissenter->status, DAReturn::NotWritable);
    EXPECT_THAT(disks_->calls(),
                ElementsAre("mount rw,noatime,x-gvfs-hide,norecover ntfs", "unmount"));
    EXPECT_THAT(log_.entries(),
                testing::Contains(HasSubstr("sdz1 is unmounted again: it was mounted read-only")));
}

TEST_F(AMount, OfAHibernatedVolumeIsUndoneThoughItIsWritable) {
    const tests::TemporaryFolder folder;
    const auto unmount = [](const std::string* path) { umount2(path->c_str(), MNT_DETACH); };
    const std::unique_ptr<const std::string, decltype(unmount)> mounted(&folder.path(), unmount);
    if (::mount("none", folder.path().c_str(), "tmpfs", 0, nullptr) != 0)
        GTEST_SKIP() << "Only root can mount a file system for this test.";
    std::ofstream(folder.path() + "/hiberfil.sys") << "hibr";
    disks_->mountAt(folder.path());
    const auto dissenter = mount();
    ASSERT_TRUE(dissenter.has_value());
    EXPECT_EQ(dissenter->status, DAReturn::NotWritable);
    EXPECT_THAT(log_.entries(), testing::Contains(HasSubstr("again: Windows is hibernated")));
}

}  // namespace

}  // namespace brisel::platform::headless
