// Mounts through UDisks2: with which options and driver, and what comes of refusals.
// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <deque>
#include <fstream>
#include <memory>

#include "platform/linux/DiskArbitration.h"
#include "platform/linux/MountInfo.h"
#include "tests/linux/desktop/FakeDesktop.h"
#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::linux {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::turnUntil;

// Mounts of every machine: one that takes a file, and one that says so and does not.
constexpr const char* Writable = "/dev/shm";
constexpr const char* Unwritable = "/proc";
constexpr const char* Refused = "org.freedesktop.UDisks2.Error.OptionNotPermitted";
constexpr const char* Failed = "org.freedesktop.UDisks2.Error.Failed";
constexpr const char* NotAuthorized = "org.freedesktop.UDisks2.Error.NotAuthorized";

/// UDisks2 with one NTFS volume, /dev/sdz1.
class FakeDisks {
  public:
    FakeDisks() {
        udisks_block_set_device(block_.get(), "/dev/sdz1");
        udisks_block_set_id_type(block_.get(), "ntfs");
        udisks_block_set_id_usage(block_.get(), "filesystem");
        udisks_block_set_id_uuid(block_.get(), "0123456789ABCDEF");
        g_signal_connect(filesystem_.get(), "handle-mount",
                         reinterpret_cast<GCallback>(&FakeDisks::mount), this);
        g_signal_connect(filesystem_.get(), "handle-unmount",
                         reinterpret_cast<GCallback>(&FakeDisks::unmount), this);
        udisks_object_skeleton_set_block(object_.get(), block_.get());
        udisks_object_skeleton_set_filesystem(object_.get(), filesystem_.get());
        g_dbus_object_manager_server_export(objects_.get(), G_DBUS_OBJECT_SKELETON(object_.get()));
        g_dbus_object_manager_server_set_connection(objects_.get(), bus_.get());
        const tests::OwnedVariant answer(g_dbus_connection_call_sync(
            bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "RequestName", g_variant_new("(su)", "org.freedesktop.UDisks2", 0), nullptr,
            G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
    }
    FakeDisks(const FakeDisks&) = delete;
    FakeDisks& operator=(const FakeDisks&) = delete;
    ~FakeDisks() {
        g_dbus_object_manager_server_set_connection(objects_.get(), nullptr);
        g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
    }

    /// What each mount leads to: a mount point, or the name of an error.
    std::deque<std::string> results;
    std::vector<std::string> calls;

  private:
    static std::string optionIn(GVariant* options, const char* name) {
        const char* text = "-";
        g_variant_lookup(options, name, "&s", &text);
        return text;
    }
    static gboolean mount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                          GVariant* options, gpointer self) {
        auto& disks = *static_cast<FakeDisks*>(self);
        disks.calls.push_back("mount " + optionIn(options, "options") + " " +
                              optionIn(options, "fstype"));
        const auto result = disks.results.empty() ? Failed : disks.results.front();
        if (!disks.results.empty()) disks.results.pop_front();
        if (result.front() == '/') {
            udisks_filesystem_complete_mount(filesystem, invocation, result.c_str());
        } else {
            g_dbus_method_invocation_return_dbus_error(invocation, result.c_str(), "Refused.");
        }
        return TRUE;
    }
    static gboolean unmount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                            GVariant* /*options*/, gpointer self) {
        static_cast<FakeDisks*>(self)->calls.emplace_back("unmount");
        udisks_filesystem_complete_unmount(filesystem, invocation);
        return TRUE;
    }

    tests::OwnedObject<GDBusConnection> bus_ = tests::SessionBus::shared().connect();
    tests::OwnedObject<GDBusObjectManagerServer> objects_{
        g_dbus_object_manager_server_new("/org/freedesktop/UDisks2")};
    tests::OwnedObject<UDisksObjectSkeleton> object_{
        udisks_object_skeleton_new("/org/freedesktop/UDisks2/block_devices/sdz1")};
    tests::OwnedObject<UDisksBlock> block_{udisks_block_skeleton_new()};
    tests::OwnedObject<UDisksFilesystem> filesystem_{udisks_filesystem_skeleton_new()};
};

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
    void knowFileSystems(const std::string& names) { std::ofstream(list_) << names; }
    std::optional<Dissenter> mount(const std::vector<std::string>& results,
                                   const std::vector<std::string>& arguments = {"rw", "noatime",
                                                                                "nobrowse"}) {
        disks_->results = {results.begin(), results.end()};
        std::optional<std::optional<Dissenter>> outcome;
        arbitration_.mountWithArguments(
            Volume, arguments,
            [&outcome](const Disk&, const auto& dissenter) { outcome = dissenter; });
        turnUntil([&outcome] { return outcome.has_value(); });
        return *outcome;
    }

    const Disk Volume{.bsdName = "sdz1", .reported = std::nullopt};
    tests::TestLoop loop_;
    tests::RecordedLog log_;
    tests::TemporaryFolder folder_;
    std::string list_ = folder_.path() + "/filesystems";
    /// The objects are fetched while this thread does nothing else.
    tests::OtherProgram machine_;
    std::unique_ptr<FakeDisks> disks_;
    DiskArbitration arbitration_{log_, list_};
};

class AWritableMount : public AMount {
  protected:
    void SetUp() override {
        if (currentMountState(Writable) != MountState::ReadWrite || access(Writable, W_OK) != 0)
            GTEST_SKIP() << Writable << " is no mount that can be written.";
    }
};

TEST_F(AWritableMount, LeavesTheVolumesLogAlone) {
    EXPECT_FALSE(mount({Writable}).has_value());
    EXPECT_THAT(disks_->calls, ElementsAre("mount rw,noatime,x-gvfs-hide,norecover -"));
}

TEST_F(AWritableMount, HasNoEmptyOption) {
    EXPECT_FALSE(mount({Writable}, {"auto"}).has_value());
    EXPECT_THAT(disks_->calls, ElementsAre("mount norecover -"));
}

TEST_F(AWritableMount, IsTheKernelsWhereThatDriverMindsTheOption) {
    knowFileSystems("nodev\tproc\n\text4\n\tntfs3\n");
    for (const char* const error : {Refused, Failed}) {
        disks_->calls.clear();
        EXPECT_FALSE(mount({error, Writable}).has_value());
        EXPECT_THAT(disks_->calls, ElementsAre("mount rw,noatime,x-gvfs-hide,norecover -",
                                               "mount rw,noatime,x-gvfs-hide ntfs3"));
    }
}

TEST_F(AMount, IsRefusedOnceWithoutTheKernelsDriver) {
    for (const char* const names : {"nodev\tproc\n\text4\n", "\tntfs\n\tntfs3g\n\txntfs3\n", ""}) {
        knowFileSystems(names);
        disks_->calls.clear();
        EXPECT_TRUE(mount({Failed}).has_value());
        EXPECT_EQ(disks_->calls.size(), 1U) << names;
    }
}

TEST_F(AMount, IsRefusedWhereTheServiceGivesUpOnIt) {
    // What a service made with GIO answers when its own work was cancelled.
    EXPECT_TRUE(
        mount({"org.gtk.GDBus.UnmappedGError.Quark._g_2dio_2derror_2dquark.Code19"}).has_value());
}

TEST_F(AMount, IsRefusedOnceForAnyOtherReason) {
    knowFileSystems("\tntfs3\n");
    EXPECT_TRUE(mount({NotAuthorized}).has_value());
    EXPECT_THAT(disks_->calls, testing::SizeIs(1));
    EXPECT_THAT(log_.entries(), ElementsAre(HasSubstr("Refused.")));
}

TEST_F(AMount, IsRefusedForTheSecondReasonIfThereIsOne) {
    knowFileSystems("\tntfs3\n");
    const auto alone = mount({NotAuthorized});
    const auto second = mount({Failed, NotAuthorized});
    ASSERT_TRUE(alone && second);
    EXPECT_EQ(second->status, alone->status);
}

TEST_F(AMount, ThatTakesNoWritingIsUndone) {
    const auto dissenter = mount({Unwritable});
    ASSERT_TRUE(dissenter.has_value());
    EXPECT_EQ(dissenter->status, DAReturn::NotWritable);
    EXPECT_THAT(disks_->calls, ElementsAre("mount rw,noatime,x-gvfs-hide,norecover -", "unmount"));
    EXPECT_THAT(log_.entries(), ElementsAre(HasSubstr("sdz1 came up read-only")));
}

}  // namespace

}  // namespace brisel::platform::linux
