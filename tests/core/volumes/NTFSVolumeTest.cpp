// The volume record: its initial values, and the ones set on appearance.
// SPDX-License-Identifier: MIT
#include "volumes/NTFSVolume.h"

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class Record : public RunningProgram {
  protected:
    std::shared_ptr<NTFSVolume> recordOf(DiskProperties properties) {
        mac.diskArbitration.attach("disk4s1", std::move(properties));
        turn();
        return volume();
    }
};

TEST_F(Record, StartsWithItsDescriptionAndNothingElse) {
    const auto description = ntfsDisk("Data", SomeUUID).description;
    const auto record = NTFSVolume::initWithVolume(description);
    EXPECT_EQ(record->diskData(), description);
    EXPECT_FALSE(record->writable());
    EXPECT_FALSE(record->notificationSent());
    EXPECT_FALSE(record->uuid());
    EXPECT_FALSE(record->label());
    EXPECT_FALSE(record->deviceNode());
    EXPECT_FALSE(record->volumePath());
}

TEST_F(Record, IsFilledWhenADiskAppears) {
    const auto record = recordOf(ntfsDisk("Data", SomeUUID));
    EXPECT_EQ(record->label(), "Data");
    EXPECT_EQ(record->deviceNode(), "disk4s1");
    EXPECT_EQ(record->uuid(), SomeUUID);
    EXPECT_FALSE(record->writable());
    EXPECT_FALSE(record->volumePath());
    EXPECT_EQ(record->diskData(), mac.diskArbitration.properties("disk4s1").description);
}

TEST_F(Record, HasNoUUIDIfTheDescriptionHasNone) {
    EXPECT_EQ(recordOf(ntfsDisk("Data"))->uuid(), std::nullopt);
}

TEST_F(Record, PrefersTheUUIDOfTheMedium) {
    auto disk = ntfsDisk("Data", OtherUUID);
    disk.description.mediaUUID = SomeUUID;
    EXPECT_EQ(recordOf(std::move(disk))->uuid(), SomeUUID);
}

TEST_F(Record, TakesTheUUIDOfTheMediumAlone) {
    auto disk = ntfsDisk("Data");
    disk.description.mediaUUID = SomeUUID;
    EXPECT_EQ(recordOf(std::move(disk))->uuid(), SomeUUID);
}

TEST_F(Record, IsLabelledNullWhereTheVolumeHasNoName) {
    auto disk = ntfsDisk("Data");
    disk.description.volumeName.reset();
    EXPECT_EQ(recordOf(std::move(disk))->label(), "(null)");
}

TEST_F(Record, NeverChangesItsUnusedFlags) {
    attachNTFS("disk4s1", "Data", SomeUUID);
    turn();
    const auto before = volume();
    choose("re-mount Data");
    choose("mount automatically");
    for (const auto& record : {before, volume()}) {
        EXPECT_FALSE(record->removable());
        EXPECT_FALSE(record->unmountable());
        EXPECT_FALSE(record->automount());
        EXPECT_FALSE(record->volumeType());
    }
}

TEST_F(Record, KeepsTheDescriptionItWasMadeFrom) {
    const auto record = recordOf(ntfsDisk("Data"));
    mac.diskArbitration.change("disk4s1", ntfsDisk("Changed"));
    EXPECT_EQ(record->diskData().volumeName, "Data");
}

TEST_F(Record, IsPromptedAgainAfterItsDiskCameBack) {
    attachNTFS("disk4s1", "Data");
    turn();
    EXPECT_TRUE(volume()->notificationSent());
    mac.diskArbitration.detach("disk4s1");
    attachNTFS("disk4s1", "Data");
    forgetLines();
    turn();
    EXPECT_THAT(newLines(), testing::Contains(testing::StartsWith("notify: ")));
}

TEST_F(Record, PrefersThePathOfItsOwnMount) {
    const auto record = NTFSVolume::initWithVolume(ntfsDisk("Data").description);
    EXPECT_EQ(currentFolder(record), platform::FileURL("/Volumes/Data"));
    record->setVolumePath(platform::FileURL("/Users/user/.brisel/Data"));
    EXPECT_EQ(currentFolder(record), platform::FileURL("/Users/user/.brisel/Data"));
    EXPECT_EQ(currentFolder(nullptr), std::nullopt);
}

}  // namespace
}  // namespace brisel::tests
