// UDisks2 properties and mountinfo lines, converted to the program's terms.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/DiskArbitration.h"
#include "platform/headless/DiskArbitration.h"
#include "platform/headless/DiskDescriptions.h"
#include "platform/headless/DriveUse.h"
#include "platform/headless/MountInfo.h"
#include "platform/headless/UDisksErrors.h"

namespace brisel::platform::headless {

namespace {

TEST(MountInfo, TellsReadOnlyFromReadWriteByMountAndByFileSystem) {
    const std::string table =
        "41 27 8:1 / /media/one rw,relatime - fuseblk /dev/sda1 rw,user_id=0\n"
        "42 27 8:2 / /media/two ro,relatime - fuseblk /dev/sda2 rw\n"
        "43 27 8:3 / /media/three rw,relatime shared:1 - fuseblk /dev/sda3 ro\n";
    EXPECT_EQ(mountState(table, "/media/one"), MountState::ReadWrite);
    EXPECT_EQ(mountState(table, "/media/two"), MountState::ReadOnly);
    EXPECT_EQ(mountState(table, "/media/three"), MountState::ReadOnly);
    EXPECT_EQ(mountState(table, "/media/four"), MountState::NotMounted);
}

TEST(MountInfo, TakesTheMountOnTop) {
    const std::string table =
        "41 27 8:1 / /media/one ro - fuseblk /dev/sda1 ro\n"
        "42 27 8:2 / /media/one rw - fuseblk /dev/sda2 rw\n";
    EXPECT_EQ(mountState(table, "/media/one"), MountState::ReadWrite);
}

TEST(MountInfo, ReadsEscapedBlanksAndBackslashes) {
    const std::string table = "41 27 8:1 / /media/My\\040Data\\134x rw - fuseblk /dev/sda1 rw\n";
    EXPECT_EQ(mountState(table, "/media/My Data\\x"), MountState::ReadWrite);
}

TEST(MountInfo, KeepsTheWhiteSpaceThatTheKernelLeavesAsItIs) {
    const std::string table = "41 27 8:1 / /media/A\rB\vC\fD rw - fuseblk /dev/sda1 rw\n";
    EXPECT_EQ(mountState(table, "/media/A\rB\vC\fD"), MountState::ReadWrite);
}

TEST(MountInfo, SkipsMalformedLines) {
    const std::string table =
        "\n- - -\n41 27\n41 27 8:1 / /media/one rw -\n41 27 8:1 / /a\\0 rw - x y\n\\\n";
    EXPECT_EQ(mountState(table, "/media/one"), MountState::NotMounted);
}

BlockProperties stick() {
    BlockProperties properties;
    properties.device = "/dev/sdb1";
    properties.idType = "ntfs";
    properties.idLabel = "Data";
    properties.idUUID = "4FF6D5AE2056652A";
    properties.filesystem = true;
    return properties;
}

TEST(DiskDescription, OfAStickHasTheKeysOfDiskArbitration) {
    auto properties = stick();
    properties.mountPoint = "/media/user/Data";
    properties.partitionUUID = "0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0";
    const auto description = describe(properties);
    EXPECT_EQ(description.volumeMountable, true);
    EXPECT_EQ(description.volumeKind, "ntfs");
    EXPECT_EQ(description.volumeName, "Data");
    EXPECT_EQ(description.mediaBSDName, "sdb1");
    EXPECT_EQ(description.volumePath, FileURL("/media/user/Data"));
    EXPECT_EQ(description.mediaUUID, "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0");
}

TEST(DiskDescription, OmitsEmptyProperties) {
    BlockProperties properties;
    properties.device = "/dev/sdb";
    const auto description = describe(properties);
    EXPECT_EQ(description.volumeMountable, false);
    EXPECT_EQ(description.volumeKind, std::nullopt);
    EXPECT_EQ(description.volumeName, std::nullopt);
    EXPECT_EQ(description.volumePath, std::nullopt);
    EXPECT_EQ(description.mediaUUID, std::nullopt);
    EXPECT_EQ(description.volumeUUID, std::nullopt);
}

TEST(DiskDescription, OfADiskThatIsBeingPulledIsNotMountable) {
    auto properties = stick();
    properties.idType.clear();
    EXPECT_EQ(describe(properties).volumeMountable, false);
}

TEST(DiskDescription, OfAnIgnoredDiskIsNotMountable) {
    auto properties = stick();
    properties.hintIgnore = true;
    EXPECT_EQ(describe(properties).volumeMountable, false);
}

// Expected value from an independent UUID implementation.
TEST(UUIDText, OfASerialNumberIsANameBasedUUID) {
    EXPECT_EQ(uuidText("4FF6D5AE2056652A"), "FDC51158-4C14-5DC8-B93E-8D96241BE74B");
    EXPECT_EQ(uuidText("4ff6d5ae2056652a"), uuidText("4FF6D5AE2056652A"));
    EXPECT_NE(uuidText("4FF6D5AE2056652B"), uuidText("4FF6D5AE2056652A"));
}

TEST(UUIDText, OfAUUIDIsThatUUIDInUpperCase) {
    EXPECT_EQ(uuidText("0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"),
              "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0");
}

TEST(UUIDText, OfAnEmptyTextIsAbsent) {
    EXPECT_EQ(uuidText(""), std::nullopt);
}

TEST(BSDName, IsTheDeviceNodeWithoutItsFolder) {
    EXPECT_EQ(bsdName("/dev/loop0"), "loop0");
    EXPECT_EQ(bsdName("/dev/mapper/x"), "mapper/x");
    EXPECT_EQ(bsdName("odd"), "odd");
}

TEST(UDisksError, MapsToTheMatchingStatus) {
    const std::string prefix = "org.freedesktop.UDisks2.Error.";
    EXPECT_EQ(statusOfError(prefix + "DeviceBusy"), DAReturn::Busy);
    EXPECT_EQ(statusOfError(prefix + "AlreadyUnmounting"), DAReturn::Busy);
    EXPECT_EQ(statusOfError(prefix + "AlreadyMounted"), DAReturn::ExclusiveAccess);
    EXPECT_EQ(statusOfError(prefix + "NotMounted"), DAReturn::NotMounted);
    EXPECT_EQ(statusOfError(prefix + "NotAuthorized"), DAReturn::NotPermitted);
    EXPECT_EQ(statusOfError(prefix + "NotAuthorizedDismissed"), DAReturn::NotPermitted);
    EXPECT_EQ(statusOfError(prefix + "MountedByOtherUser"), DAReturn::NotPermitted);
    EXPECT_EQ(statusOfError(prefix + "NotAuthorizedCanObtain"), DAReturn::NotPrivileged);
    EXPECT_EQ(statusOfError(prefix + "OptionNotPermitted"), DAReturn::BadArgument);
    EXPECT_EQ(statusOfError(prefix + "NotSupported"), DAReturn::Unsupported);
    EXPECT_EQ(statusOfError(prefix + "WouldWakeup"), DAReturn::NotReady);
    EXPECT_EQ(statusOfError("org.freedesktop.DBus.Error.UnknownObject"), DAReturn::NotFound);
    EXPECT_EQ(statusOfError("org.freedesktop.DBus.Error.UnknownMethod"), DAReturn::NotFound);
}

TEST(UDisksError, ThatIsUnknownMapsToTheGeneralError) {
    EXPECT_EQ(statusOfError("org.freedesktop.UDisks2.Error.Failed"), DAReturn::Error);
    EXPECT_EQ(statusOfError("org.freedesktop.DBus.Error.NoReply"), DAReturn::Error);
    EXPECT_EQ(statusOfError(""), DAReturn::Error);
}

TEST(MountOptions, AreTheArgumentsThatUDisks2Knows) {
    EXPECT_EQ(mountOptions({"rw", "auto", "nobrowse", "noowners", "noatime"}),
              "rw,x-gvfs-hide,noatime");
    EXPECT_EQ(mountOptions({}), "");
}

TEST(ADevice, MayBeUnpluggedOnceNothingOnItsDriveIsMounted) {
    const BlockUse volume{.path = "/sdb1", .bsdName = "sdb1", .drive = "/stick"};
    const BlockUse idle{.path = "/sdb2", .bsdName = "sdb2", .drive = "/stick"};
    auto sibling = idle;
    sibling.mounted = true;
    const BlockUse elsewhere{.path = "/sda1", .drive = "/disk", .mounted = true};
    const BlockUse content{.path = "/dm0", .backing = "/sdb2", .mounted = true};
    EXPECT_TRUE(mayBeUnplugged({elsewhere, idle, volume}, "sdb1"));
    EXPECT_FALSE(mayBeUnplugged({volume, sibling}, "sdb1"));
    EXPECT_FALSE(mayBeUnplugged({volume, idle, content}, "sdb1"));
    EXPECT_FALSE(mayBeUnplugged({elsewhere}, "sdb1"));
    auto internal = volume;
    internal.system = true;
    EXPECT_FALSE(mayBeUnplugged({internal}, "sdb1"));
    EXPECT_TRUE(mayBeUnplugged({{.path = "/loop0", .bsdName = "loop0", .system = true}}, "loop0"));
    const BlockUse unlocked{.path = "/dm1", .bsdName = "dm-1", .backing = "/sdb1"};
    EXPECT_TRUE(mayBeUnplugged({volume, idle, unlocked}, "dm-1"));
    EXPECT_FALSE(mayBeUnplugged({volume, sibling, unlocked}, "dm-1"));
    EXPECT_FALSE(mayBeUnplugged({internal, unlocked}, "dm-1"));
}

}  // namespace

}  // namespace brisel::platform::headless
