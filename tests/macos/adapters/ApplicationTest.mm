// The application adapter.
// SPDX-License-Identifier: MIT
#include "platform/macos/Application.h"

#include <cstdio>

#import "tests/macos/adapters/AdapterTest.h"

/// Prints applicationWillTerminate: to standard error.
@interface EndTeller : NSObject
@end

@implementation EndTeller

- (void)applicationWillTerminate:(NSNotification*)notification {
    (void)notification;
    std::fputs("will terminate", stderr);
}

@end

namespace brisel::tests::macos {
namespace {

class ApplicationAdapter : public AdapterTest {
  protected:
    ApplicationAdapter() { [StageApplication sharedApplication]; }

    platform::macos::Application adapter;
};

TEST_F(ApplicationAdapter, LetsNoExceptionOut) {
    orders().nextCallRaises = true;
    adapter.activateIgnoringOtherApps();
    orders().nextCallRaises = true;
    adapter.orderFrontStandardAboutPanel();
    orders().nextCallRaises = true;
    adapter.terminate();
    EXPECT_THAT(logLines(),
                ElementsAre("The system refused to come to the front: raised as told",
                            "The system refused to show the About panel: raised as told",
                            "The system refused to terminate: raised as told"));
}

using ApplicationAdapterDeathTest = ApplicationAdapter;

TEST_F(ApplicationAdapterDeathTest, TerminatesAfterTellingItsDelegate) {
    EXPECT_EXIT(
        {
            EndTeller* const delegate = [[EndTeller alloc] init];
            [NSApp setDelegate:static_cast<id>(delegate)];
            adapter.terminate();
            std::_Exit(3);
        },
        testing::ExitedWithCode(0), "will terminate");
}

}  // namespace
}  // namespace brisel::tests::macos
