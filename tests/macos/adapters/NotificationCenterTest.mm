// The adapter of the process's notification center.
// SPDX-License-Identifier: MIT
#include "entry/macos/MenuBarApplication.h"
#include "platform/NotificationCenter.h"
#include "privileged/KJPrivilegedTask.h"
#import "tests/macos/adapters/AdapterTest.h"
#include "tests/support/PlatformWith.h"

/// Keeps the objects of the notifications that it hears.
@interface CocoaObserver : NSObject {
  @public
    std::vector<const void*> objects;
}
- (void)hear:(NSNotification*)notification;
@end

@implementation CocoaObserver

- (void)hear:(NSNotification*)notification {
    objects.push_back([[notification object] pointerValue]);
}

@end

namespace brisel::tests::macos {
namespace {

class NotificationCenterAdapter : public AdapterTest {
  protected:
    /// The one that Brisel runs on.
    platform::NotificationCenter& adapter =
        brisel::macos::MenuBarApplication::shared().platform().notificationCenter;
    std::vector<const void*> objects;

    [[nodiscard]] platform::Subscription observe() {
        return adapter.addObserver("Told",
                                   [this](const void* object) { objects.push_back(object); });
    }
};

TEST_F(NotificationCenterAdapter, CallsObserversOfThatNameUntilTheyEnd) {
    auto first = observe();
    const auto second = observe();
    adapter.postNotificationName("Told", this);
    adapter.postNotificationName("Other", this);
    first.reset();
    adapter.postNotificationName("Told", nullptr);
    EXPECT_THAT(objects, ElementsAre(this, this, nullptr));
}

TEST_F(NotificationCenterAdapter, LetsAnObservationEndItself) {
    platform::Subscription own;
    own = adapter.addObserver("Told", [&, held = std::make_shared<int>()](const void* object) {
        own.reset();
        objects.insert(objects.end(), static_cast<std::size_t>(held.use_count()), object);
    });
    adapter.postNotificationName("Told", this);
    adapter.postNotificationName("Told", this);
    EXPECT_THAT(objects, ElementsAre(this));
}

TEST_F(NotificationCenterAdapter, HearsOfObjectsFromElsewhereWithoutAnAddress) {
    const auto observation = observe();
    [[NSNotificationCenter defaultCenter] postNotificationName:@"Told" object:@"a string"];
    EXPECT_THAT(objects, ElementsAre(nullptr));
}

class WithCocoaObserver : public NotificationCenterAdapter {
  protected:
    WithCocoaObserver() {
        [[NSNotificationCenter defaultCenter]
            addObserver:observer
               selector:@selector(hear:)
                   name:@"KJPrivilegedTaskDidTerminateNotification"
                 object:nil];
    }
    ~WithCocoaObserver() override {
        [[NSNotificationCenter defaultCenter] removeObserver:observer];
        [observer release];
    }

    CocoaObserver* const observer = [[CocoaObserver alloc] init];
};

TEST_F(WithCocoaObserver, HearsOfTheEndOfATaskOnce) {
    const auto task = KJPrivilegedTask::initWithLaunchPath(
        platformWith(mac.platform, {.notificationCenter = &adapter}), "/bin/tool");
    EXPECT_EQ(task->launch(), 0);
    while (task->isRunning())
        task->checkTaskStatus();
    EXPECT_THAT(observer->objects, ElementsAre(task.get()));
}

}  // namespace
}  // namespace brisel::tests::macos
