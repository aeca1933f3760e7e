// Unmount and mount requests on the simulated Mac: effects, refusals, completions.
// SPDX-License-Identifier: MIT
#include "tests/platform/simulated/Disks.h"

namespace brisel::tests {
namespace {

using platform::Disk;

class Requests : public Disks {
  protected:
    void SetUp() override {
        attachNTFS("disk4", "Data");
        forgetLines();
    }
};

TEST_F(Requests, ToUnmountRemovePathContentsAndWritability) {
    disks.mountBehind("disk4", "/Users/user/.brisel/Data");
    mac.fileSystem.makeFile("/Users/user/.brisel/Data/file");
    EXPECT_EQ(unmount("disk4"), 0);
    EXPECT_EQ(properties("disk4").description.volumePath, std::nullopt);
    EXPECT_FALSE(properties("disk4").writable);
    EXPECT_EQ(mac.fileSystem.entryCount("/Users/user/.brisel/Data"), 0U);
    EXPECT_THAT(newLines(), ElementsAre("unmount: disk4"));
}

TEST_F(Requests, ToUnmountAreRefusedInThisOrder) {
    auto changed = properties("disk4");
    changed.description.volumePath.reset();
    disks.change("disk4", changed);
    EXPECT_EQ(unmount("disk4"), 0xF8DA0007);
    changed.description.volumeMountable = false;
    disks.change("disk4", changed);
    EXPECT_EQ(unmount("disk4"), 0xF8DA000C);
    disks.detach("disk4");
    EXPECT_EQ(unmount("disk4"), 0xF8DA0006);
    disks.refuseUnmount("disk4", 5);
    EXPECT_EQ(unmount("disk4"), 5);
    EXPECT_EQ(unmount("disk4"), 0xF8DA0006);
    EXPECT_EQ(unmount("disk77"), 0xF8DA0006);
}

TEST_F(Requests, ToMountPutTheDiskBelowVolumes) {
    EXPECT_EQ(unmount("disk4"), 0);
    forgetLines();
    EXPECT_EQ(mount("disk4"), 0);
    EXPECT_THAT(newLines(), ElementsAre("mount: disk4 rw x"));
    EXPECT_EQ(properties("disk4").description.volumePath, platform::FileURL("/Volumes/Data"));
    EXPECT_TRUE(properties("disk4").writable);
}

TEST_F(Requests, ToMountANamelessDiskUseTheTextOfAMissingName) {
    auto changed = properties("disk4");
    changed.description.volumePath.reset();
    changed.description.volumeName.reset();
    disks.change("disk4", changed);
    EXPECT_EQ(mount("disk4"), 0);
    EXPECT_EQ(properties("disk4").description.volumePath, platform::FileURL("/Volumes/(null)"));
}

TEST_F(Requests, ToMountAreRefusedInThisOrder) {
    EXPECT_EQ(mount("disk4"), 0xF8DA0002);
    disks.detach("disk4");
    EXPECT_EQ(mount("disk4"), 0xF8DA0006);
    disks.refuseMount("disk4", 7);
    disks.refuseMount("disk4", 8);
    EXPECT_EQ(mount("disk4"), 8);
    EXPECT_EQ(mount("disk4"), 0xF8DA0006);
}

TEST_F(Requests, AreRefusedByAnyStatusEvenSuccess) {
    disks.refuseUnmount("disk4", 0);
    bool dissented = false;
    disks.unmount(disk("disk4"), [&](const auto&, const auto& dissenter) {
        dissented = dissenter.has_value() && dissenter->status == 0;
    });
    turn();
    EXPECT_TRUE(dissented);
    EXPECT_TRUE(properties("disk4").description.volumePath);
}

TEST_F(Requests, TakeEffectWhenTheyAreMadeAndCompleteWhenTheLoopTurns) {
    bool completed = false;
    disks.unmount(disk("disk4"), [&](const auto&, const auto&) { completed = true; });
    EXPECT_EQ(properties("disk4").description.volumePath, std::nullopt);
    EXPECT_FALSE(completed);
    turn();
    EXPECT_TRUE(completed);
}

TEST_F(Requests, MadeWhileHeldCompleteAfterTheRelease) {
    std::vector<int> order;
    disks.hold();
    disks.unmount(disk("disk4"), [&](const auto&, const auto&) { order.push_back(1); });
    disks.mountWithArguments(disk("disk4"), {},
                             [&](const auto&, const auto&) { order.push_back(2); });
    turn();
    EXPECT_TRUE(order.empty());
    disks.release();
    EXPECT_TRUE(order.empty());
    turn();
    EXPECT_THAT(order, ElementsAre(1, 2));
    EXPECT_EQ(unmount("disk4"), 0);
}

TEST_F(Requests, MadeBeforeTheHoldStillComplete) {
    bool completed = false;
    disks.unmount(disk("disk4"), [&](const auto&, const auto&) { completed = true; });
    disks.hold();
    turn();
    EXPECT_TRUE(completed);
}

TEST_F(Requests, HeldSeeTheDiskAttachedLaterUnderTheName) {
    std::optional<std::string> seen;
    disks.hold();
    disks.unmount(disk("disk4"), [&](const Disk& unmounted, const auto&) {
        seen = disks.copyDescription(unmounted).volumeName;
    });
    disks.detach("disk4");
    attachNTFS("disk4", "Another");
    disks.release();
    turn();
    EXPECT_EQ(seen, "Another");
}

TEST_F(Requests, ThatBypassTheServiceNeedADisk) {
    disks.mountBehind("disk77", "/somewhere");
    EXPECT_FALSE(mac.fileSystem.hasFolder("/somewhere"));
    disks.detach("disk4");
    disks.mountBehind("disk4", "/somewhere");
    EXPECT_FALSE(mac.fileSystem.hasFolder("/somewhere"));
}

}  // namespace
}  // namespace brisel::tests
