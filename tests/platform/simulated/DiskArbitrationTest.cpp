// Simulated disks: reports, mount points and requests.
// SPDX-License-Identifier: MIT
#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {
namespace {

class Disks : public testing::Test, public SimulatedProgram {
  protected:
    platform::simulated::DiskArbitration& disks = mac.diskArbitration;
    std::vector<std::string> heard;
    std::vector<platform::DiskDescription> reports;
    platform::Subscription appeared;
    platform::Subscription disappeared;

    void listen() {
        disks.createSession();
        appeared =
            disks.registerDiskAppearedCallback([this](const auto& disk, const auto& description) {
                heard.push_back("+" + disk.bsdName);
                reports.push_back(description);
            });
        disappeared = disks.registerDiskDisappearedCallback(
            [this](const auto& disk, const auto& description) {
                heard.push_back("-" + disk.bsdName);
                reports.push_back(description);
            });
        disks.scheduleWithRunLoop();
    }
    platform::Disk disk(const std::string& name) { return disks.diskFromBSDName(name).value(); }
};

TEST_F(Disks, DisappearWithTheirLastDescription) {
    listen();
    attachNTFS("disk4", "Data");
    disks.detach("disk4");
    turn();
    EXPECT_THAT(heard, ElementsAre("+disk4", "-disk4"));
    EXPECT_EQ(reports[1].volumePath, platform::FileURL("/Volumes/Data"));
    EXPECT_EQ(disks.copyDescription(disk("disk4")).volumeName, "Data");
    EXPECT_FALSE(disks.isAttached("disk4"));
    EXPECT_TRUE(disks.wasEverAttached("disk4"));
    EXPECT_FALSE(disks.wasEverAttached("disk5"));
}

TEST_F(Disks, AreNotReportedToEndedSubscriptions) {
    listen();
    attachNTFS("disk4", "Data");
    appeared.reset();
    turn();
    EXPECT_THAT(heard, ElementsAre());
}

TEST_F(Disks, AreSilentWithoutASession) {
    mac.faults.failCall(1);
    attachNTFS("disk4", "Data");
    listen();
    turn();
    EXPECT_THAT(heard, ElementsAre());
    EXPECT_FALSE(disks.diskFromBSDName("disk4"));
    EXPECT_FALSE(disks.diskFromVolumePath(platform::FileURL("/Volumes/Data")));
}

TEST_F(Disks, AreCreatedFromAnyName) {
    EXPECT_EQ(disks.diskFromBSDName("disk77")->bsdName, "disk77");
    EXPECT_FALSE(disks.diskFromBSDName(std::nullopt));
    EXPECT_EQ(disks.copyDescription(disk("disk77")), platform::DiskDescription());
}

TEST_F(Disks, AreFoundByTheirCurrentMountPoint) {
    attachNTFS("disk4", "Data");
    const platform::FileURL path("/Volumes/Data");
    EXPECT_EQ(disks.diskFromVolumePath(path)->bsdName, "disk4");
    EXPECT_FALSE(disks.diskFromVolumePath(platform::FileURL("/Volumes")));
    EXPECT_FALSE(disks.diskFromVolumePath(std::nullopt));
    disks.detach("disk4");
    EXPECT_FALSE(disks.diskFromVolumePath(path));
}

TEST_F(Disks, CountAsNewlyMountedOnlyIfTheirPathChanges) {
    attachNTFS("disk4", "Data");
    attachNTFS("disk5", "Data");
    auto changed = disks.properties("disk4");
    changed.writable = true;
    disks.change("disk4", changed);
    EXPECT_EQ(disks.diskFromVolumePath(platform::FileURL("/Volumes/Data"))->bsdName, "disk5");
}

TEST_F(Disks, CompleteRequestsMadeBeforeTheHold) {
    attachNTFS("disk4", "Data");
    bool completed = false;
    disks.unmount(disk("disk4"), [&](const auto&, const auto&) { completed = true; });
    disks.hold();
    turn();
    EXPECT_TRUE(completed);
}

TEST_F(Disks, AreMountedBehindTheServiceOnlyWhereAttached) {
    attachNTFS("disk4", "Data");
    disks.mountBehind("disk77", "/somewhere");
    EXPECT_FALSE(mac.fileSystem.hasFolder("/somewhere"));
    disks.detach("disk4");
    disks.mountBehind("disk4", "/somewhere");
    EXPECT_FALSE(mac.fileSystem.hasFolder("/somewhere"));
}

}  // namespace
}  // namespace brisel::tests
