// The adapter of User Notifications: responses, and their thread.
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>
#include <utility>
#include <vector>

#import "tests/macos/adapters/Notifications.h"

namespace brisel::tests::macos {
namespace {

using platform::NotificationResponse;

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

TEST_F(Responses, AreAnsweredOnceByTheCompletionHandler) {
    listen();
    deliver();
    turn(NSDefaultRunLoopMode, Patience, &arrived);
    ASSERT_EQ(completions.size(), 1U);
    completions.front()();
    EXPECT_THAT(takeComplaints(), ElementsAre("a response was answered: yes"));
}

TEST_F(Responses, OmitValuesThatAreNotStrings) {
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

TEST_F(Responses, GoToTheHandlerSetLast) {
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

TEST_F(Responses, KeepTheDelegateAlive) {
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
