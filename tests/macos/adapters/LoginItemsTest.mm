// The adapter of login items.
// SPDX-License-Identifier: MIT
#include "platform/macos/LoginItems.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class LoginItemsAdapter : public AdapterTest {
  protected:
    platform::macos::LoginItems adapter;

    /// macOS 13, where SMLoginItemSetEnabled refuses.
    void upgrade(bool answer) {
        mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Refuse);
        orders().appServiceAnswer = answer;
    }
};

TEST_F(LoginItemsAdapter, AsksTheServiceOfNewerSystemsAfterARefusal) {
    upgrade(true);
    EXPECT_TRUE(adapter.setEnabled("org.brisel.Helper", true));
    EXPECT_TRUE(adapter.setEnabled("org.brisel.Helper", false));
    EXPECT_THAT(lines(), ElementsAre("login-item: org.brisel.Helper on",
                                     "app-service: register org.brisel.Helper",
                                     "login-item: org.brisel.Helper off",
                                     "app-service: unregister org.brisel.Helper"));
}

TEST_F(LoginItemsAdapter, LeavesTheServiceAloneAfterAYes) {
    orders().appServiceAnswer = true;
    EXPECT_TRUE(adapter.setEnabled("org.brisel.Helper", true));
    EXPECT_THAT(lines(), ElementsAre("login-item: org.brisel.Helper on"));
}

TEST_F(LoginItemsAdapter, LogsWhyTheServiceRefuses) {
    upgrade(false);
    EXPECT_FALSE(adapter.setEnabled("org.brisel.Helper", true));
    EXPECT_THAT(logLines(),
                ElementsAre("The system refused to register the login item: Operation not "
                            "permitted"));
}

}  // namespace
}  // namespace brisel::tests::macos
