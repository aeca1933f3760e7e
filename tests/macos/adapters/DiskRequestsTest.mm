// The Disk Arbitration adapter: unmount and mount requests.
// SPDX-License-Identifier: MIT
#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>

#include <fstream>

#include "platform/macos/MountFlags.h"
#include "tests/linux/TemporaryFolder.h"
#import "tests/macos/adapters/DiskArbitrationAdapter.h"

namespace brisel::tests::macos {
namespace {

using platform::DAReturn;
using platform::FileURL;

class DiskRequests : public DiskArbitrationAdapter {
  protected:
    DiskRequests() { start(); }
};

TEST_F(DiskRequests, DoNotCompleteWhileAnAlertIsOpen) {
    attachUnmounted("disk4s1");
    deliver();
    mount("disk4s1");
    EXPECT_FALSE(deliverDiskEvents(NSModalPanelRunLoopMode));
    EXPECT_THAT(completed, IsEmpty());
    deliver();
    EXPECT_THAT(completed, ElementsAre("disk4s1"));
}

TEST_F(DiskRequests, MayCompleteBeforeTheCallReturns) {
    orders().refusesAtOnce = true;
    attach("disk4s1");
    unmount("disk4s1");
    EXPECT_THAT(statuses, ElementsAre(DAReturn::NotPrivileged));
    mount("disk4s1", {"rw"});
    EXPECT_THAT(statuses, ElementsAre(DAReturn::NotPrivileged, DAReturn::NotPrivileged));
    EXPECT_THAT(completed, ElementsAre("disk4s1", "disk4s1"));
}

TEST_F(DiskRequests, PreserveEveryBitOfTheStatus) {
    // The second is EBUSY as a Mach error, the status of a volume in use.
    const std::vector<std::uint32_t> values{DAReturn::Busy, 0x0000C010, DAReturn::Unsupported,
                                            0xFFFFFFFF,     0x80000000, 1};
    attach("disk4s1");
    deliver();
    for (const auto value : values) {
        mac.diskArbitration.refuseUnmount("disk4s1", value);
        unmount("disk4s1");
        deliver();
        mac.diskArbitration.refuseMount("disk4s1", value);
        mount("disk4s1", {"rw"});
        deliver();
        EXPECT_THAT(statuses, ElementsAre(value, value));
        statuses.clear();
    }
}

TEST_F(DiskRequests, MountWithAllArgumentsInOrder) {
    attachUnmounted("disk4s1");
    mount("disk4s1", {"rw", "auto", "nobrowse", "Größe=💾", "noowners", "", "noatime"});
    EXPECT_THAT(lines(), ElementsAre("mount: disk4s1 rw auto nobrowse Größe=💾 noowners  noatime"));
}

TEST_F(DiskRequests, WithoutADiskAreRefusedAtOnce) {
    attach("disk4s1");
    mac.faults.failCall(mac.faults.calls() + 1);
    unmount("disk4s1");
    mac.faults.failCall(mac.faults.calls() + 1);
    mount("disk4s1", {"rw"});
    EXPECT_THAT(statuses, ElementsAre(DAReturn::Error, DAReturn::Error));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(DiskRequests, ReleaseTheirCompletionsAfterTheCall) {
    attach("disk4s1");
    const auto held = std::make_shared<int>();
    adapter.unmount({.bsdName = "disk4s1"}, [held](const auto&, const auto&) {});
    EXPECT_GT(held.use_count(), 1);
    deliver();
    EXPECT_EQ(held.use_count(), 1);
}

bool isReadOnly(const std::string& path) {
    struct statvfs fileSystem {};
    return statvfs(path.c_str(), &fileSystem) == 0 && (fileSystem.f_flag & ST_RDONLY) != 0;
}

/// A folder with a read-only mount: an existing one, or `spare` in a new mount namespace; empty if
/// neither is possible.
std::string readOnlyFolder(const std::string& spare) {
    std::ifstream mounts("/proc/self/mounts");
    for (std::string device, path, rest; mounts >> device >> path && std::getline(mounts, rest);) {
        if (isReadOnly(path)) return path;
    }
    const bool alone = unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
    const bool made = alone && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      ::mount("none", spare.c_str(), "tmpfs", MS_RDONLY, nullptr) == 0;
    return made ? spare : "";
}

class MountedReadOnly : public DiskRequests {
  protected:
    TemporaryFolder writable;
    TemporaryFolder spare;
    const std::string readOnly = readOnlyFolder(spare.path());

    void SetUp() override {
        if (readOnly.empty()) GTEST_SKIP() << "nothing can be mounted read-only here";
        attachUnmounted("disk4s1");
    }
    ~MountedReadOnly() override { umount2(spare.path().c_str(), MNT_DETACH); }

    void mountAt(const std::string& path, const std::vector<std::string>& arguments,
                 const std::string& device = "disk4s1") {
        NSString* const text = [NSString stringWithUTF8String:path.c_str()];
        describeWith(kDADiskDescriptionVolumePathKey, [NSURL fileURLWithPath:text isDirectory:YES]);
        mount(device, arguments);
        deliver();
    }
    void mountReadWriteAt(const std::string& path, const std::string& device = "disk4s1") {
        auto unmounted = mac.diskArbitration.properties(device);
        unmounted.description.volumePath.reset();
        mac.diskArbitration.change(device, unmounted);
        mountAt(path, {"auto", "rw", "nobrowse"}, device);
    }
};

TEST_F(MountedReadOnly, IsDistinguishedFromMountedReadWrite) {
    EXPECT_TRUE(platform::macos::isMountedReadOnly(readOnly));
    EXPECT_FALSE(platform::macos::isMountedReadOnly(writable.path()));
    EXPECT_FALSE(platform::macos::isMountedReadOnly(writable.path() + "/nothing"));
}

TEST_F(MountedReadOnly, IsRefusedTheSecondTimeInARow) {
    mountReadWriteAt(readOnly);
    mountReadWriteAt(readOnly);
    mountReadWriteAt(readOnly);
    EXPECT_THAT(statuses, ElementsAre(std::nullopt, DAReturn::NotWritable, DAReturn::NotWritable));
}

TEST_F(MountedReadOnly, IsForgottenOnceTheDiskComesOutWritable) {
    mountReadWriteAt(readOnly);
    mountReadWriteAt(writable.path());
    mountReadWriteAt(readOnly);
    EXPECT_THAT(statuses, ElementsAre(std::nullopt, std::nullopt, std::nullopt));
}

TEST_F(MountedReadOnly, IsForgottenOnceTheDiskGoes) {
    mountReadWriteAt(readOnly);
    mac.diskArbitration.detach("disk4s1");
    deliver();
    attachUnmounted("disk4s1");
    mountReadWriteAt(readOnly);
    EXPECT_THAT(statuses, ElementsAre(std::nullopt, std::nullopt));
}

TEST_F(MountedReadOnly, IsRememberedForEachDisk) {
    attachUnmounted("disk5s1");
    mountReadWriteAt(readOnly);
    mountReadWriteAt(readOnly, "disk5s1");
    EXPECT_THAT(statuses, ElementsAre(std::nullopt, std::nullopt));
}

TEST_F(MountedReadOnly, IsAcceptedIfReadWriteWasNotRequested) {
    mountAt(readOnly, {"rdonly"});
    EXPECT_THAT(statuses, ElementsAre(std::nullopt));
}

TEST_F(MountedReadOnly, DoesNotHideAnotherRefusal) {
    mac.diskArbitration.refuseMount("disk4s1", DAReturn::Busy);
    mountAt(readOnly, {"rw"});
    EXPECT_THAT(statuses, ElementsAre(DAReturn::Busy));
}

TEST_F(MountedReadOnly, IsNotReportedForAWritableVolume) {
    mountAt(writable.path(), {"rw"});
    EXPECT_THAT(statuses, ElementsAre(std::nullopt));
}

}  // namespace
}  // namespace brisel::tests::macos
