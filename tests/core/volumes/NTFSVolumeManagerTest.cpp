// The volume manager: creation, session and delegate.
// SPDX-License-Identifier: MIT
#include "volumes/NTFSVolumeManager.h"

#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

/// Records the calls of the manager's initialiser.
class NotingServices final : public platform::DiskArbitration,
                             public platform::UserNotificationCenter {
  public:
    std::vector<std::string> calls;

    void createSession() override { calls.emplace_back("session"); }
    platform::Subscription registerDiskAppearedCallback(DiskCallback /*callback*/) override {
        calls.emplace_back("appeared");
        return {};
    }
    platform::Subscription registerDiskDisappearedCallback(DiskCallback /*callback*/) override {
        calls.emplace_back("disappeared");
        return {};
    }
    void scheduleWithRunLoop() override { calls.emplace_back("schedule"); }
    std::optional<platform::Disk> diskFromBSDName(
        const std::optional<std::string>& /*name*/) override {
        return std::nullopt;
    }
    std::optional<platform::Disk> diskFromVolumePath(
        const std::optional<platform::FileURL>& /*path*/) override {
        return std::nullopt;
    }
    platform::DiskDescription copyDescription(const platform::Disk& /*disk*/) override {
        return {};
    }
    void unmount(const platform::Disk& /*disk*/, Completion /*completion*/) override {}
    void mountWithArguments(const platform::Disk& /*disk*/,
                            const std::vector<std::string>& /*arguments*/,
                            Completion /*completion*/) override {}

    platform::Subscription setDelegate(ResponseHandler /*handler*/) override {
        calls.emplace_back("delegate");
        return {};
    }
    void setNotificationCategories(
        const std::vector<platform::NotificationCategory>& /*categories*/) override {
        calls.emplace_back("categories");
    }
    void requestAuthorization(unsigned /*options*/, AuthorizationHandler /*handler*/) override {}
    void addNotificationRequest(const platform::NotificationRequest& /*request*/,
                                AddHandler /*handler*/) override {}
};

class Manager : public testing::Test, public SimulatedProgram {};

TEST_F(Manager, StartsInOrder) {
    NotingServices services;
    const NTFSVolumeManager made(platformWith(
        mac.platform, {.diskArbitration = &services, .userNotificationCenter = &services}));
    EXPECT_THAT(services.calls, ElementsAre("session", "appeared", "disappeared", "schedule",
                                            "delegate", "categories"));
}

TEST_F(Manager, StartsIdleWithAnEmptyList) {
    const NTFSVolumeManager made(mac.platform);
    EXPECT_TRUE(made.volumes().empty());
    EXPECT_FALSE(made.inProgress());
}

TEST_F(Manager, IsNotNotifiedBeforeTheMainLoopTurns) {
    attachNTFS("disk4s1", "Data");
    program.start();
    EXPECT_TRUE(manager().volumes().empty());
}

TEST_F(Manager, DoesNothingForADelegateThatIsGone) {
    attachNTFS("disk4s1", "Data");
    NTFSVolumeManager orphan(mac.platform);
    orphan.setDelegate(std::weak_ptr<NTFSVolumeManagerDelegate>());
    turn();
    EXPECT_EQ(orphan.volumes().size(), 1U);
    orphan.errorIcon();
    orphan.remountVolumeNamed("disk4s1");
    turn();
    EXPECT_FALSE(orphan.inProgress());
    EXPECT_THAT(newLines(), Not(Contains(StartsWith("icon:"))));
}

TEST_F(Manager, DoesNotKeepItsDelegateAlive) {
    struct Delegate final : NTFSVolumeManagerDelegate {
        void refreshVolumes() override {}
        void errorIcon() override {}
    };
    NTFSVolumeManager made(mac.platform);
    auto delegate = std::make_shared<Delegate>();
    const std::weak_ptr<Delegate> observer = delegate;
    made.setDelegate(delegate);
    delegate.reset();
    EXPECT_TRUE(observer.expired());
}

TEST_F(Manager, NotifiesTheDelegateThatWasSetLast) {
    struct Delegate final : NTFSVolumeManagerDelegate {
        int refreshes = 0;
        void refreshVolumes() override { ++refreshes; }
        void errorIcon() override {}
    };
    NTFSVolumeManager made(mac.platform);
    const auto first = std::make_shared<Delegate>();
    const auto second = std::make_shared<Delegate>();
    made.setDelegate(first);
    made.setDelegate(second);
    made.refreshVolumes();
    EXPECT_EQ(first->refreshes, 0);
    EXPECT_EQ(second->refreshes, 1);
}

TEST_F(Manager, StaysQuietWithoutASession) {
    mac.faults.failCall(1);
    attachNTFS("disk4s1", "Data");
    start();
    EXPECT_EQ(mac.faults.struck(), "createSession");
    EXPECT_TRUE(manager().volumes().empty());
    manager().remountVolumeNamed("disk4s1");
    EXPECT_EQ(person.alertsSeen.size(), 1U);
}

TEST_F(Manager, TakesARecordFromAMenuItemThatCarriesOne) {
    const auto record = NTFSVolume::initWithVolume({});
    EXPECT_EQ(volumeOf(senderFor(record)), record);
    EXPECT_EQ(volumeOf(platform::MenuItem()), nullptr);
    platform::MenuItem other;
    other.representedObject = std::make_shared<platform::RepresentedObject>();
    EXPECT_EQ(volumeOf(other), nullptr);
}

}  // namespace
}  // namespace brisel::tests
