// The alert adapter: modal alerts.
// SPDX-License-Identifier: MIT
#include "platform/macos/Alert.h"

#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using platform::AlertContent;

class AlertAdapter : public AdapterTest {
  protected:
    AlertAdapter() { [StageApplication sharedApplication]; }

    platform::macos::Alert adapter;
};

TEST_F(AlertAdapter, NumbersItsButtonsFromTheFirstOn) {
    const AlertContent content{
        .messageText = "?", .informativeText = "", .buttons = {"a", "b", "c"}};
    for (const int button : {0, 1, 2}) {
        person.whenAlertShows = [button](const AlertContent&) { return button; };
        EXPECT_EQ(adapter.runModal(content), platform::AlertFirstButtonReturn + button);
    }
}

TEST_F(AlertAdapter, HasTheDefaultButtonIfNoneIsGiven) {
    EXPECT_EQ(adapter.runModal({.messageText = "!", .informativeText = "", .buttons = {}}),
              platform::AlertFirstButtonReturn);
    EXPECT_EQ(lines().back(), "buttons: OK");
}

TEST_F(AlertAdapter, TreatsAnExceptionAsNoButton) {
    orders().nextCallRaises = true;
    EXPECT_LT(adapter.runModal({.messageText = "?", .informativeText = "", .buttons = {"a"}}),
              platform::AlertFirstButtonReturn);
    EXPECT_THAT(logLines(), ElementsAre("The system refused to show an alert: raised as told"));
}

}  // namespace
}  // namespace brisel::tests::macos
