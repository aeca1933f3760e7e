// The Disk Arbitration adapter: sessions and disk reports.
// SPDX-License-Identifier: MIT
#import "tests/macos/adapters/DiskArbitrationAdapter.h"

namespace brisel::tests::macos {
namespace {

using platform::Disk;

class DiskReports : public DiskArbitrationAdapter {};

TEST_F(DiskReports, ReadTheMatchOnceThereIsASession) {
    ASSERT_EQ(kDADiskDescriptionMatchVolumeMountable, nullptr);
    start();
    EXPECT_NE(kDADiskDescriptionMatchVolumeMountable, nullptr);
}

TEST_F(DiskReports, WaitUntilTheSessionIsScheduled) {
    adapter.createSession();
    registerCallbacks();
    attach("disk4s1");
    deliver();
    EXPECT_THAT(reports, IsEmpty());
    adapter.scheduleWithRunLoop();
    deliver();
    EXPECT_THAT(reports, ElementsAre("+ disk4s1"));
}

TEST_F(DiskReports, WaitWhileAnAlertOrTheMenuIsOpen) {
    start();
    attach("disk4s1");
    EXPECT_FALSE(deliverDiskEvents(NSModalPanelRunLoopMode));
    EXPECT_FALSE(deliverDiskEvents(NSEventTrackingRunLoopMode));
    EXPECT_THAT(reports, IsEmpty());
    EXPECT_TRUE(deliverDiskEvents(NSDefaultRunLoopMode));
    EXPECT_THAT(reports, ElementsAre("+ disk4s1"));
}

TEST_F(DiskReports, EndWithTheirSubscriptions) {
    start();
    attach("disk4s1");
    deliver();
    appeared.reset();
    attach("disk5s1");
    mac.diskArbitration.detach("disk4s1");
    deliver();
    disappeared.reset();
    mac.diskArbitration.detach("disk5s1");
    deliver();
    EXPECT_THAT(reports, ElementsAre("+ disk4s1", "- disk4s1"));
}

TEST_F(DiskReports, ThatWaitAreDroppedWithTheirSubscription) {
    start();
    attach("disk4s1");
    appeared.reset();
    deliver();
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(DiskReports, ReleaseTheirCallbacksWhenTheyEnd) {
    start();
    const auto held = std::make_shared<int>();
    auto extra = adapter.registerDiskAppearedCallback([held](const Disk&, const auto&) {});
    EXPECT_GT(held.use_count(), 1);
    extra.reset();
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(DiskReports, MayEndTheirOwnRegistration) {
    start();
    std::vector<std::string> seen;
    platform::Subscription own;
    own = adapter.registerDiskAppearedCallback(
        [&, label = std::string("seen ")](const Disk& disk, const auto&) {
            own.reset();
            seen.push_back(label + disk.bsdName);
        });
    attach("disk4s1");
    attach("disk5s1");
    deliver();
    EXPECT_THAT(seen, ElementsAre("seen disk4s1"));
}

TEST_F(DiskReports, OfAVolumeOnNoDeviceHaveNoName) {
    start();
    attach("");
    deliver();
    EXPECT_THAT(reports, ElementsAre("+ (null)"));
    EXPECT_EQ(lastDescription.mediaBSDName, std::nullopt);
    EXPECT_EQ(lastDescription.volumeName, "Data");
}

class WithoutASession : public DiskArbitrationAdapter {
  protected:
    WithoutASession() {
        orders().noSession = true;
        start();
    }
};

TEST_F(WithoutASession, NoDiskIsEverReported) {
    attach("disk4s1");
    mac.diskArbitration.detach("disk4s1");
    deliver();
    EXPECT_FALSE(mac.mainLoop.turnOnce());
    EXPECT_THAT(reports, IsEmpty());
}

TEST_F(WithoutASession, NoDiskIsMade) {
    attach("disk4s1");
    EXPECT_FALSE(adapter.diskFromBSDName("disk4s1"));
    EXPECT_FALSE(adapter.diskFromVolumePath(platform::FileURL("/Volumes/Data")));
    EXPECT_EQ(description("disk4s1"), platform::DiskDescription());
}

TEST_F(WithoutASession, RequestsAreRefusedAtOnceAndNeverMade) {
    unmount("disk4s1");
    mount("disk4s1", {"rw"});
    EXPECT_THAT(statuses, ElementsAre(platform::DAReturn::Error, platform::DAReturn::Error));
    EXPECT_THAT(completed, ElementsAre("disk4s1", "disk4s1"));
    EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(WithoutASession, SubscriptionsEndAsAnyOther) {
    appeared.reset();
    disappeared.reset();
    EXPECT_THAT(reports, IsEmpty());
}

}  // namespace
}  // namespace brisel::tests::macos
