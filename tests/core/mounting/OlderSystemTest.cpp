// The remount before macOS 12, which uses Disk Arbitration instead of the mount tool.
// SPDX-License-Identifier: MIT
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class OlderSystem : public RunningProgram {
  protected:
    void SetUp() override {
        mac.systemVersion.setMacOS12OrLater(false);
        RunningProgram::SetUp();
        attachQuietly("disk4s1", "Data", SomeUUID);
    }
};

TEST_F(OlderSystem, MountsByDiskArbitration) {
    choose("re-mount Data");
    EXPECT_THAT(
        newLines(),
        ElementsAre(busyMenuLine(), "icon: brisel-status-orange-light", "unmount: disk4s1",
                    "log: disk unmounted...", "mount: disk4s1 rw auto nobrowse noowners noatime",
                    "log: disk disk4s1 appeared", busyMenuLine(),
                    "icon: brisel-status-orange-light", "open: file:///Volumes/Data/",
                    menuLine("show Data in Finder | unmount | remove all extended "
                             "attributes | mount automatically | ---"),
                    "icon: brisel-status-blue-light"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(OlderSystem, RecordsTheVolumeAfreshWithoutAPathOfItsOwn) {
    const auto before = volume();
    choose("re-mount Data");
    ASSERT_EQ(manager().volumes().size(), 1U);
    EXPECT_NE(volume(), before);
    EXPECT_TRUE(volume()->writable());
    EXPECT_FALSE(volume()->volumePath());
    EXPECT_EQ(volume()->label(), "Data");
}

TEST_F(OlderSystem, MakesNoFolderAndAsksForNoPassword) {
    choose("re-mount Data");
    EXPECT_THAT(newLines(), Not(Contains(StartsWith("mkdir:"))));
    EXPECT_EQ(person.passwordPromptsSeen, 0);
    EXPECT_TRUE(mac.fileSystem.foldersFrom("/Users/user").empty());
}

TEST_F(OlderSystem, LosesTheRecordOfAVolumeThatIsNotLast) {
    attachQuietly("disk5s1", "Other");
    choose("re-mount Data");
    EXPECT_THAT(devices(), ElementsAre("disk5s1"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(OlderSystem, ReportsARefusedMount) {
    mac.diskArbitration.refuseMount("disk4s1", 0xF8DA000B);
    choose("re-mount Data");
    auto lines = newLines();
    lines.erase(lines.begin(), lines.begin() + 5);
    EXPECT_THAT(
        lines,
        ElementsAre("icon: brisel-status-red-light", "log: kDAReturnNotWritable for volume disk4s1",
                    "alert: Volume \"Data\" not re-mountable",
                    "text: The volume is not re-mountable in read/write mode. "
                    "Probably it was not clean unmounted before.",
                    "buttons: OK", emptyMenuLine(), "icon: brisel-status-grey-light"));
    EXPECT_TRUE(manager().volumes().empty());
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(OlderSystem, OpensTheNewPathEvenIfItIsMissing) {
    mac.diskArbitration.hold();
    manager().remountVolumeNamed("disk4s1");
    mac.diskArbitration.release();
    mac.diskArbitration.hold();
    turn();
    auto gone = mac.diskArbitration.properties("disk4s1");
    gone.description.volumePath.reset();
    mac.diskArbitration.change("disk4s1", gone);
    mac.diskArbitration.release();
    turn();
    EXPECT_THAT(newLines(), Contains("open: (null)"));
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(OlderSystem, RemountsAListedVolumeOnItsOwn) {
    storeAutomountList({SomeUUID});
    mac.diskArbitration.report("disk4s1");
    turn();
    EXPECT_TRUE(volume()->writable());
    EXPECT_FALSE(manager().inProgress());
}

}  // namespace
}  // namespace brisel::tests
