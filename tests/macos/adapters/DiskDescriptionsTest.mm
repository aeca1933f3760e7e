// The Disk Arbitration adapter: descriptions and disk objects.
// SPDX-License-Identifier: MIT
#include <climits>

#import "tests/macos/adapters/DiskArbitrationAdapter.h"

namespace brisel::tests::macos {
namespace {

using platform::DiskDescription;
using platform::FileURL;

class DiskDescriptions : public DiskArbitrationAdapter {
  protected:
    DiskDescriptions() { start(); }
};

TEST_F(DiskDescriptions, HaveAllValuesOfTheSystem) {
    const DiskDescription full{.volumeMountable = true,
                               .volumeKind = "ntfs",
                               .volumeName = "Größe 💾",
                               .mediaBSDName = "disk4s1",
                               .volumePath = FileURL("/Volumes/Größe 💾"),
                               .mediaUUID = "00000000-1111-2222-3333-444444444444",
                               .volumeUUID = "AAAAAAAA-BBBB-CCCC-DDDD-EEEEEEEEEEEE"};
    mac.diskArbitration.attach("disk4s1", {.description = full, .writable = false});
    EXPECT_EQ(description("disk4s1"), full);
}

TEST_F(DiskDescriptions, LackValuesAbsentInTheSystem) {
    mac.diskArbitration.attach("disk4s1", {});
    DiskDescription nameAlone;
    nameAlone.mediaBSDName = "disk4s1";
    EXPECT_EQ(description("disk4s1"), nameAlone);
}

TEST_F(DiskDescriptions, DistinguishFalseFromAbsent) {
    DiskDescription notMountable;
    notMountable.volumeMountable = false;
    mac.diskArbitration.attach("disk4s1", {.description = notMountable});
    EXPECT_EQ(description("disk4s1").volumeMountable, false);
}

TEST_F(DiskDescriptions, OfAnUnknownDiskAreEmpty) {
    EXPECT_EQ(description("disk9s9"), DiskDescription());
}

TEST_F(DiskDescriptions, TakeAValueOfAnotherTypeAsAbsent) {
    attach("disk4s1");
    ASSERT_EQ(description("disk4s1").volumeMountable, true);
    describeWith(kDADiskDescriptionVolumeMountableKey, [NSNumber numberWithInt:1]);
    describeWith(kDADiskDescriptionVolumeKindKey, [NSNumber numberWithBool:YES]);
    describeWith(kDADiskDescriptionVolumeNameKey, [NSArray arrayWithObject:@"Data"]);
    describeWith(kDADiskDescriptionVolumePathKey, @"/Volumes/Data");
    describeWith(kDADiskDescriptionMediaBSDNameKey, [NSNull null]);
    describeWith(kDADiskDescriptionMediaUUIDKey, @"00000000-1111-2222-3333-444444444444");
    describeWith(kDADiskDescriptionVolumeUUIDKey, [NSURL fileURLWithPath:@"/"]);
    EXPECT_EQ(description("disk4s1"), DiskDescription());
}

TEST_F(DiskDescriptions, LackAPathThatIsTooLong) {
    attach("disk4s1");
    const auto path = "/" + std::string(PATH_MAX, 'x');
    describeWith(kDADiskDescriptionVolumePathKey,
                 [NSURL fileURLWithPath:[NSString stringWithUTF8String:path.c_str()]]);
    EXPECT_EQ(description("disk4s1").volumePath, std::nullopt);
}

class Disks : public DiskArbitrationAdapter {
  protected:
    Disks() { start(); }
};

TEST_F(Disks, AreCreatedFromAnyNameButNotFromNull) {
    const auto disk = adapter.diskFromBSDName("disk9s9");
    ASSERT_TRUE(disk);
    EXPECT_EQ(disk->bsdName, "disk9s9");
    EXPECT_FALSE(adapter.diskFromBSDName(std::nullopt));
}

TEST_F(Disks, ThatTheSystemCannotCreateAreAbsent) {
    mac.faults.failCall(mac.faults.calls() + 1);
    EXPECT_FALSE(adapter.diskFromBSDName("disk4s1"));
    EXPECT_TRUE(adapter.diskFromBSDName("disk4s1"));
}

TEST_F(Disks, AreFoundAtTheirMountPointAlone) {
    attach("disk4s1");
    const auto disk = adapter.diskFromVolumePath(FileURL("/Volumes/Data"));
    ASSERT_TRUE(disk);
    EXPECT_EQ(disk->bsdName, "disk4s1");
    EXPECT_FALSE(adapter.diskFromVolumePath(FileURL("/Volumes/Data/folder")));
    EXPECT_FALSE(adapter.diskFromVolumePath(FileURL("/Volumes")));
    EXPECT_FALSE(adapter.diskFromVolumePath(std::nullopt));
}

}  // namespace
}  // namespace brisel::tests::macos
