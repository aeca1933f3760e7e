// The remount prompt: its category, its posting, and the user's response.
// SPDX-License-Identifier: MIT
#include "app/RemountPrompt.h"

#include <thread>

#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {
namespace {

class RemountPrompt : public RunningProgram {};

TEST_F(RemountPrompt, HasOneCategoryOfTwoActions) {
    const auto& categories = mac.userNotificationCenter.categories();
    ASSERT_EQ(categories.size(), 1U);
    EXPECT_EQ(categories[0].identifier, "MOUNT");
    ASSERT_EQ(categories[0].actions.size(), 2U);
    EXPECT_EQ(categories[0].actions[0].identifier, "DO_MOUNT");
    EXPECT_EQ(categories[0].actions[0].title, "Yes, sure!");
    EXPECT_EQ(categories[0].actions[1].identifier, "NOTHING");
    EXPECT_EQ(categories[0].actions[1].title, "No, thanks.");
}

TEST_F(RemountPrompt, OffersItsActionsInTheUsersLanguage) {
    mac.bundle.setLanguage("de");
    manager().registerNotificationCategory();
    const auto& actions = mac.userNotificationCenter.categories().at(0).actions;
    EXPECT_EQ(actions.at(0).title, "Ja, gern!");
    EXPECT_EQ(actions.at(1).title, "Nein, danke.");
}

/// A notification center whose completion handlers wait until the test calls them.
class SlowCenter final : public platform::UserNotificationCenter {
  public:
    unsigned options = 0;
    std::vector<AuthorizationHandler> permissions;
    std::vector<platform::NotificationRequest> requests;
    std::vector<AddHandler> additions;

    platform::Subscription setDelegate(ResponseHandler /*handler*/) override { return {}; }
    void setNotificationCategories(
        const std::vector<platform::NotificationCategory>& /*categories*/) override {}
    void requestAuthorization(unsigned asked, AuthorizationHandler handler) override {
        options = asked;
        permissions.push_back(std::move(handler));
    }
    void addNotificationRequest(const platform::NotificationRequest& request,
                                AddHandler handler) override {
        requests.push_back(request);
        additions.push_back(std::move(handler));
    }
};

class SlowPrompt : public RunningProgram {
  protected:
    SlowCenter center;
    const platform::Platform slow = platformWith(mac.platform, {.userNotificationCenter = &center});
    std::shared_ptr<NTFSVolume> record = NTFSVolume::initWithVolume({});
};

TEST_F(SlowPrompt, AsksForAlertAndSoundTogether) {
    postRemountPrompt(slow, record);
    EXPECT_EQ(center.options, 6U);
}

TEST_F(SlowPrompt, StopsOnAnErrorEvenIfPermissionIsGranted) {
    postRemountPrompt(slow, record);
    center.permissions.at(0)(
        true, platform::Error{.localizedDescription = "x", .localizedFailureReason = {}});
    EXPECT_TRUE(center.requests.empty());
    EXPECT_THAT(newLogLines(), ElementsAre("Requesting auth for Local Notification failed!"));
}

TEST_F(SlowPrompt, CountsAsSentOnlyOnceItWasAccepted) {
    postRemountPrompt(slow, record);
    center.permissions.at(0)(true, std::nullopt);
    EXPECT_FALSE(record->notificationSent());
    center.additions.at(0)(std::nullopt);
    EXPECT_TRUE(record->notificationSent());
}

TEST_F(SlowPrompt, IsAddedAgainByARebuildBeforeItWasAccepted) {
    postRemountPrompt(slow, record);
    postRemountPrompt(slow, record);
    for (const auto& permission : center.permissions)
        permission(true, std::nullopt);
    EXPECT_EQ(center.requests.size(), 2U);
    EXPECT_EQ(center.requests[0].identifier, center.requests[1].identifier);
}

TEST_F(SlowPrompt, KeepsItsRecordAlive) {
    const std::weak_ptr<NTFSVolume> observer = record;
    postRemountPrompt(slow, record);
    record.reset();
    center.permissions.at(0)(true, std::nullopt);
    center.permissions.clear();
    const auto kept = observer.lock();
    ASSERT_NE(kept, nullptr);
    center.additions.at(0)(std::nullopt);
    EXPECT_TRUE(kept->notificationSent());
}

TEST_F(SlowPrompt, ShowsAMissingLabelAndDeviceAsNull) {
    postRemountPrompt(slow, record);
    center.permissions.at(0)(true, std::nullopt);
    EXPECT_EQ(center.requests.at(0).title, "(null) detected");
    EXPECT_EQ(center.requests.at(0).userInfo.at("volume"), "(null)");
}

TEST_F(SlowPrompt, MayBeAnsweredOnAnotherThread) {
    postRemountPrompt(slow, record);
    std::thread([&] {
        center.permissions.at(0)(true, std::nullopt);
        center.additions.at(0)(std::nullopt);
    }).join();
    EXPECT_TRUE(record->notificationSent());
}

class Response : public RunningProgram {
  protected:
    void SetUp() override {
        RunningProgram::SetUp();
        attachQuietly("disk4s1", "Data");
    }
};

TEST_F(Response, StartsTheRemountOfAVolumeThatIsListedAndReadOnly) {
    EXPECT_FALSE(isPromptOpen(manager(), {{"volume", "disk9s1"}}));
    EXPECT_TRUE(isPromptOpen(manager(), {{"volume", "disk4s1"}}));
    respond("DO_MOUNT", "disk4s1");
    EXPECT_FALSE(isPromptOpen(manager(), {{"volume", "disk4s1"}}));
    EXPECT_THAT(newLines(), Contains("unmount: disk4s1"));
    EXPECT_TRUE(volume()->writable());
}

TEST_F(Response, DoesNothingForAnyOtherAction) {
    for (const auto* const action :
         {"NOTHING", platform::NotificationDefaultActionIdentifier,
          platform::NotificationDismissActionIdentifier, "do_mount", ""}) {
        respond(action, "disk4s1");
        EXPECT_THAT(newLines(), ElementsAre()) << action;
    }
    EXPECT_FALSE(manager().inProgress());
}

TEST_F(Response, ToAnotherRequestIsIgnored) {
    for (const auto* const identifier : {"other", "Mount", "MOUNT", ""}) {
        mac.userNotificationCenter.respond({.requestIdentifier = identifier,
                                            .actionIdentifier = "DO_MOUNT",
                                            .userInfo = {{"volume", "disk4s1"}}});
    }
    EXPECT_THAT(newLines(), ElementsAre());
}

TEST_F(Response, WithoutAVolumeEndsInTheAlert) {
    mac.userNotificationCenter.respond(
        {.requestIdentifier = "mount", .actionIdentifier = "DO_MOUNT", .userInfo = {}});
    EXPECT_THAT(newLines(), Contains("alert: Volume not mounted"));
}

TEST_F(Response, NeverCallsItsCompletionHandler) {
    respond("DO_MOUNT", "disk4s1");
    respond("DO_MOUNT", "disk9");
    respond("NOTHING", "disk4s1");
    mac.userNotificationCenter.respond(
        {.requestIdentifier = "other", .actionIdentifier = "DO_MOUNT", .userInfo = {}});
    EXPECT_EQ(mac.userNotificationCenter.completedResponses(), 0);
}

}  // namespace
}  // namespace brisel::tests
