// The adapter of User Notifications: requests, categories and permission.
// SPDX-License-Identifier: MIT
#import "tests/macos/adapters/Notifications.h"

namespace brisel::tests::macos {
namespace {

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

TEST_F(Notifications, ThatRaiseAnExceptionEndInAnErrorOnce) {
    orders().nextCallRaises = true;
    add();
    EXPECT_EQ(answers, 1);
    EXPECT_TRUE(error);
    EXPECT_THAT(logLines(),
                ElementsAre("The system refused to show a notification: raised as told"));
}

TEST_F(Notifications, ThatCannotBeMadeEndInAnError) {
    platform::NotificationRequest atOnce;
    atOnce.identifier = "x";
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

TEST_F(Permission, IsNotGivenByAnException) {
    orders().nextCallRaises = true;
    granted = true;
    ask(0);
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(granted);
    EXPECT_TRUE(error);
}

}  // namespace
}  // namespace brisel::tests::macos
