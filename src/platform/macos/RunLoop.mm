// Timers on the main run loop, by NSTimer.
// SPDX-License-Identifier: MIT
#import "platform/macos/RunLoop.h"

#import <Foundation/Foundation.h>

#include <memory>
#include <utility>

#include "platform/macos/Owned.h"

@interface BriselTimerTarget : NSObject {
  @public
    std::function<void()> fire;
}
- (void)timerFired:(NSTimer*)timer;
@end

@implementation BriselTimerTarget

- (void)timerFired:(NSTimer*)timer {
    (void)timer;
    @autoreleasepool {
        // A copy: the call may invalidate the timer.
        const auto call = fire;
        call();
    }
}

@end

namespace brisel::platform::macos {

Subscription RunLoop::scheduledTimer(std::chrono::milliseconds interval,
                                     std::function<void()> fire) {
    const Owned<BriselTimerTarget*> target([[BriselTimerTarget alloc] init]);
    target.get()->fire = std::move(fire);
    const auto seconds = std::chrono::duration<double>(interval).count();
    NSTimer* const timer = [NSTimer scheduledTimerWithTimeInterval:seconds
                                                            target:target.get()
                                                          selector:@selector(timerFired:)
                                                          userInfo:nil
                                                           repeats:YES];
    // The timer retains its target until invalidated.
    const auto owner = std::make_shared<Owned<NSTimer*>>(retained(timer));
    return Subscription([owner] { [owner->get() invalidate]; });
}

}  // namespace brisel::platform::macos
