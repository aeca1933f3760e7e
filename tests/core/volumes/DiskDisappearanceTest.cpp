// Handling of a disappeared disk and its mount point.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"
#include "volumes/DiskEvents.h"

namespace brisel::tests {
namespace {

constexpr const char* MountPoint = "/Users/user/.brisel/Data";

class DiskDisappearance : public RunningProgram {
  protected:
    void disappear() {
        forgetLines();
        mac.diskArbitration.detach("disk4s1");
        turn();
    }
};

TEST_F(DiskDisappearance, IgnoresADeviceWithoutARecord) {
    attachQuietly("disk4s1", "Data");
    attachQuietly("disk5s1", "Other");
    manager().volumes().erase(manager().volumes().begin());
    manager().setInProgress(true);
    disappear();
    EXPECT_THAT(newLines(), ElementsAre("log: disk disk4s1 disappeared"));
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    EXPECT_TRUE(manager().inProgress());
}

TEST_F(DiskDisappearance, DropsTheFirstOfTwoRecordsOnly) {
    attachQuietly("disk4s1", "Data");
    addRecord("disk4s1", "Twin");
    disappear();
    EXPECT_THAT(labels(), ElementsAre("Twin"));
}

TEST_F(DiskDisappearance, IgnoresADiskThatIsNotMountableOrOfNoKind) {
    attachQuietly("disk4s1", "Data");
    auto description = mac.diskArbitration.properties("disk4s1").description;
    description.volumeMountable.reset();
    diskDisappeared(manager(), {.bsdName = "disk4s1"}, description);
    description.volumeMountable = true;
    description.volumeKind.reset();
    diskDisappeared(manager(), {.bsdName = "disk4s1"}, description);
    EXPECT_THAT(newLines(),
                ElementsAre("log: disk disk4s1 disappeared", "log: disk disk4s1 disappeared"));
    EXPECT_EQ(manager().volumes().size(), 1U);
}

class EmptyMountFolder : public RunningProgram {
  protected:
    bool remove() { return removeEmptyMountFolder(mac.platform, platform::FileURL(MountPoint)); }
};

TEST_F(EmptyMountFolder, StaysWhereAFolderIsInIt) {
    mac.fileSystem.makeFolder(std::string(MountPoint) + "/inner");
    EXPECT_TRUE(remove());
    EXPECT_THAT(newLines(), ElementsAre());
    EXPECT_TRUE(mac.fileSystem.hasFolder(std::string(MountPoint) + "/inner"));
}

}  // namespace
}  // namespace brisel::tests
