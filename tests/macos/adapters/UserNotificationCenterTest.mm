// Notifications with buttons.
// SPDX-License-Identifier: MIT
#include "platform/macos/UserNotificationCenter.h"

#include <thread>

#import "tests/macos/adapters/AdapterTest.h"
#import "tests/macos/frameworks/UserNotifications.h"

namespace brisel::tests::macos {
namespace {

using namespace std::chrono_literals;
using platform::Error;
using platform::NotificationResponse;
using testing::ElementsAre;
using testing::IsEmpty;

class Notifications : public AdapterTest {
  protected:
    platform::macos::UserNotificationCenter adapter;
    const platform::NotificationRequest request{.identifier = "disk4s1",
                                                .title = "Größe 💾 detected",
                                                .body = "%@?",
                                                .soundName = "Hero",
                                                .categoryIdentifier = "REMOUNT",
                                                .userInfo = {{"volume", "disk4s1"}},
                                                .delay = 200ms};
    int answers = 0;
    std::optional<Error> error;
    bool granted = false;
    std::thread::id thread;

    void add() {
        adapter.addNotificationRequest(request, [this](const auto& failure) {
            ++answers;
            error = failure;
            thread = std::this_thread::get_id();
        });
    }
    void ask(unsigned options) {
        adapter.requestAuthorization(options, [this](bool answer, const auto& failure) {
            ++answers;
            granted = answer;
            error = failure;
            thread = std::this_thread::get_id();
        });
    }
};

TEST_F(Notifications, AreHandedOverWithAllTheySay) {
    add();
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(error);
    EXPECT_THAT(lines(),
                ElementsAre("notify: id=disk4s1 category=REMOUNT volume=disk4s1 sound=Hero "
                            "delay=0.2 title=\"Größe 💾 detected\" body=\"%@?\""));
    EXPECT_EQ(mac.userNotificationCenter.lastPrompt()->userInfo, request.userInfo);
}

TEST_F(Notifications, AreAnsweredOnAnotherThread) {
    add();
    EXPECT_NE(thread, std::thread::id());
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(Notifications, MayBeAcceptedLongAfterTheyWereHandedOver) {
    orders().answersWait = true;
    add();
    EXPECT_EQ(answers, 0);
    deliverAnswers();
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(error);
}

TEST_F(Notifications, ThatAreNotAllowedEndInAnError) {
    mac.userNotificationCenter.refuseNextRequest();
    add();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->localizedDescription,
              platform::simulated::Faults::error().localizedDescription);
    add();
    EXPECT_FALSE(error);
}

TEST_F(Notifications, ThatTheSystemRaisesForEndInAnErrorOnce) {
    orders().nextCallRaises = true;
    add();
    EXPECT_EQ(answers, 1);
    EXPECT_TRUE(error);
    EXPECT_THAT(logLines(),
                ElementsAre("The system refused to show a notification: raised as told"));
}

TEST_F(Notifications, ThatCannotBeMadeEndInAnError) {
    const platform::NotificationRequest atOnce{.identifier = "x"};
    adapter.addNotificationRequest(atOnce, [this](const auto& failure) { error = failure; });
    EXPECT_TRUE(error);
    EXPECT_THAT(lines(), ElementsAre("log: The system refused to show a notification: time "
                                     "interval must be greater than 0"));
}

TEST_F(Notifications, HaveCategoriesWithButtonsInOrder) {
    adapter.setNotificationCategories(
        {{.identifier = "REMOUNT",
          .actions = {{.identifier = "yes", .title = "Ja 💾"}, {.identifier = "no", .title = "Nö"}}},
         {.identifier = "EMPTY", .actions = {}}});
    auto seen = mac.userNotificationCenter.categories();
    ASSERT_EQ(seen.size(), 2U);
    if (seen.front().identifier != "REMOUNT") std::swap(seen.front(), seen.back());
    EXPECT_EQ(seen.back().identifier, "EMPTY");
    EXPECT_THAT(seen.back().actions, IsEmpty());
    ASSERT_EQ(seen.front().actions.size(), 2U);
    EXPECT_EQ(seen.front().actions[0].identifier, "yes");
    EXPECT_EQ(seen.front().actions[0].title, "Ja 💾");
    EXPECT_EQ(seen.front().actions[1].identifier, "no");
    EXPECT_EQ(seen.front().actions[1].title, "Nö");
}

TEST_F(Notifications, LoseNoMoreThanTheCategoriesToAnException) {
    orders().nextCallRaises = true;
    adapter.setNotificationCategories({{.identifier = "REMOUNT", .actions = {}}});
    EXPECT_THAT(mac.userNotificationCenter.categories(), IsEmpty());
    EXPECT_EQ(logLines().size(), 1U);
}

class Permission : public Notifications {};

TEST_F(Permission, IsAskedForWithItsOptions) {
    ask(platform::AuthorizationOptionAlert | platform::AuthorizationOptionSound);
    EXPECT_THAT(lines(), ElementsAre("permission: alert sound"));
    EXPECT_EQ(answers, 1);
    EXPECT_TRUE(granted);
    EXPECT_FALSE(error);
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(Permission, MayComeLongAfterTheRequest) {
    orders().answersWait = true;
    ask(platform::AuthorizationOptionAlert);
    EXPECT_EQ(answers, 0);
    deliverAnswers();
    EXPECT_EQ(answers, 1);
    EXPECT_TRUE(granted);
}

TEST_F(Permission, MayBeDenied) {
    mac.userNotificationCenter.setPermission(
        platform::simulated::UserNotificationCenter::Permission::Deny);
    ask(platform::AuthorizationOptionAlert);
    EXPECT_THAT(lines(), ElementsAre("permission: alert"));
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(granted);
    EXPECT_FALSE(error);
}

TEST_F(Permission, MayEndInAnError) {
    mac.userNotificationCenter.setPermission(
        platform::simulated::UserNotificationCenter::Permission::Error);
    ask(0);
    EXPECT_FALSE(granted);
    EXPECT_TRUE(error);
}

TEST_F(Permission, IsNotGivenByAnException) {
    orders().nextCallRaises = true;
    granted = true;
    ask(0);
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(granted);
    EXPECT_TRUE(error);
}

class Responses : public Notifications {
  protected:
    static constexpr NSTimeInterval Patience = 5;
    static constexpr NSTimeInterval AWhile = 0.1;

    const NotificationResponse response{.requestIdentifier = "disk4s1",
                                        .actionIdentifier = "yes",
                                        .userInfo = {{"volume", "disk4s1"}, {"größe", "💾"}}};
    platform::Subscription delegate;
    std::vector<NotificationResponse> seen;
    std::vector<platform::UserNotificationCenter::CompletionHandler> completions;
    bool arrived = false;

    void listen() {
        delegate = adapter.setDelegate([this](const auto& told, auto completion) {
            seen.push_back(told);
            completions.push_back(std::move(completion));
            thread = std::this_thread::get_id();
            arrived = true;
        });
    }
    void deliverHere(NSDictionary* userInfo = nil) const {
        deliverResponseHere(response, userInfo);
    }
    void deliver() const {
        @autoreleasepool {
            deliverResponse(response, [] {});
        }
    }
};

TEST_F(Responses, ReachTheHandlerOnTheMainThread) {
    listen();
    deliver();
    EXPECT_THAT(seen, IsEmpty());
    turn(NSDefaultRunLoopMode, Patience, &arrived);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(thread, std::this_thread::get_id());
    EXPECT_EQ(seen[0].requestIdentifier, "disk4s1");
    EXPECT_EQ(seen[0].actionIdentifier, "yes");
    EXPECT_EQ(seen[0].userInfo, response.userInfo);
}

TEST_F(Responses, WaitWhileAnAlertIsOpen) {
    listen();
    deliver();
    turn(NSModalPanelRunLoopMode, AWhile);
    EXPECT_THAT(seen, IsEmpty());
    turn(NSDefaultRunLoopMode, Patience, &arrived);
    EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Responses, OnTheMainThreadAreHandledAtOnce) {
    listen();
    deliverHere();
    EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Responses, AreNotAnsweredUnlessTheHandlerDoes) {
    listen();
    deliver();
    turn(NSDefaultRunLoopMode, Patience, &arrived);
    completions.clear();
    EXPECT_THAT(takeComplaints(), IsEmpty());
}

TEST_F(Responses, AreAnsweredOnceByTheHandlerThatIsHandedOn) {
    listen();
    deliver();
    turn(NSDefaultRunLoopMode, Patience, &arrived);
    ASSERT_EQ(completions.size(), 1U);
    completions.front()();
    EXPECT_THAT(takeComplaints(), ElementsAre("a response was answered: yes"));
}

TEST_F(Responses, LeaveOutWhatIsNoText) {
    listen();
    NSNumber* const number = [NSNumber numberWithInt:1];
    deliverHere([NSDictionary dictionaryWithObjectsAndKeys:@"disk4s1", @"volume", number, @"number",
                                                           @"text", number, nil]);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].userInfo, (platform::UserInfo{{"volume", "disk4s1"}}));
}

TEST_F(Responses, AreNotDeliveredAfterTheSubscription) {
    listen();
    delegate.reset();
    deliver();
    turn(NSDefaultRunLoopMode, AWhile);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Responses, OnTheirWayAreDroppedWithTheSubscription) {
    listen();
    deliver();
    delegate.reset();
    turn(NSDefaultRunLoopMode, AWhile);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Responses, GoToTheHandlerThatTookThePlaceOfAnother) {
    delegate = adapter.setDelegate([this](const auto&, const auto&) { ++answers; });
    listen();
    deliverHere();
    EXPECT_EQ(seen.size(), 1U);
    EXPECT_EQ(answers, 0);
}

TEST_F(Responses, MayEndTheirOwnSubscription) {
    const auto held = std::make_shared<int>(1);
    delegate = adapter.setDelegate([this, held](const auto&, const auto&) {
        delegate.reset();
        answers += *held;
    });
    deliverHere();
    deliverHere();
    EXPECT_EQ(answers, 1);
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(Responses, FindTheDelegateAlive) {
    @autoreleasepool {
        listen();
    }
    for (int count = 0; count < 3; ++count)
        deliver();
    while (seen.size() < 3 && !HasFailure())
        turn(NSDefaultRunLoopMode, AWhile);
    EXPECT_EQ(seen.size(), 3U);
}

}  // namespace
}  // namespace brisel::tests::macos
