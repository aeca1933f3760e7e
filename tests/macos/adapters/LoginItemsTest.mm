// The adapter of login items.
// SPDX-License-Identifier: MIT
#include "platform/macos/LoginItems.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

class LoginItemsAdapter : public AdapterTest {
  protected:
    platform::macos::LoginItems adapter;
};

TEST_F(LoginItemsAdapter, RegistersAndRemovesAHelper) {
    EXPECT_TRUE(adapter.setEnabled("org.brisel.Helper", true));
    EXPECT_TRUE(adapter.setEnabled("org.brisel.Helper", false));
    EXPECT_THAT(lines(), testing::ElementsAre("login-item: org.brisel.Helper on",
                                              "login-item: org.brisel.Helper off"));
}

TEST_F(LoginItemsAdapter, ReportsARefusal) {
    mac.loginItems.setAnswer(platform::simulated::LoginItems::Answer::Refuse);
    EXPECT_FALSE(adapter.setEnabled("org.brisel.Helper", true));
    EXPECT_FALSE(adapter.setEnabled("org.brisel.Helper", false));
}

}  // namespace
}  // namespace brisel::tests::macos
