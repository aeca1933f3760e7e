// The activation token: from the launch or the desktop, to one window.
// SPDX-License-Identifier: MIT
#include "platform/desktop/ActivationToken.h"

#include <gtest/gtest.h>

#include "tests/linux/desktop/DialogScript.h"
#include "tests/linux/desktop/SessionBus.h"

namespace brisel::platform::desktop {

namespace {

constexpr const char* Wayland = ActivationToken::LaunchVariables[0];
constexpr const char* X11 = ActivationToken::LaunchVariables[1];

class TheActivationToken : public testing::Test {
  protected:
    ~TheActivationToken() override {
        for (const char* const name : ActivationToken::LaunchVariables)
            unsetenv(name);
    }
};

TEST_F(TheActivationToken, IsGoodForOneWindow) {
    ActivationToken token;
    EXPECT_EQ(token.take(), "");
    token.set("old");
    token.set("new");
    EXPECT_EQ(token.take(), "new");
    EXPECT_EQ(token.take(), "");
}

TEST_F(TheActivationToken, BeginsWithThatOfTheLaunch) {
    setenv(X11, "brisel_TIME1", 1);
    EXPECT_EQ(ActivationToken().take(), "brisel_TIME1");
    setenv(Wayland, "of-launch", 1);
    EXPECT_EQ(ActivationToken().take(), "of-launch");
}

TEST_F(TheActivationToken, ReachesTheNextDialogOnly) {
    setenv(Wayland, "of-launch", 1);
    const tests::DialogScript dialog("echo \"$XDG_ACTIVATION_TOKEN $DESKTOP_STARTUP_ID\" >token");
    const auto tokenOfADialog = [&dialog] {
        DialogProcess process(dialog.program(), {});
        while (process.descriptor() >= 0)
            process.takeIn();
        return dialog.textIn("token");
    };
    dialog.activationToken.set("clicked");
    EXPECT_EQ(tokenOfADialog(), "clicked clicked\n");
    EXPECT_EQ(tokenOfADialog(), " \n");
}

}  // namespace

}  // namespace brisel::platform::desktop
