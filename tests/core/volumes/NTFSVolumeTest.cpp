// The volume record: its initial values, and the ones set on appearance.
// SPDX-License-Identifier: MIT
#include "volumes/NTFSVolume.h"

#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class Record : public RunningProgram {};

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

TEST_F(Record, NeverChangesItsUnusedFlags) {
    attachQuietly("disk4s1", "Data", SomeUUID);
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
    attachQuietly("disk4s1", "Data");
    mac.diskArbitration.change("disk4s1", ntfsDisk("Changed"));
    EXPECT_EQ(volume()->diskData().volumeName, "Data");
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
