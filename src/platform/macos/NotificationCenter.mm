// Named notifications within the process, by NSNotificationCenter.
// SPDX-License-Identifier: MIT
#import "platform/macos/NotificationCenter.h"

#import <Foundation/Foundation.h>

#include <memory>
#include <utility>

#include "platform/macos/Exceptions.h"
#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

@interface BriselNotificationObserver : NSObject {
  @public
    std::function<void(const void*)> observer;
}
- (void)receive:(NSNotification*)notification;
@end

@implementation BriselNotificationObserver

- (void)receive:(NSNotification*)notification {
    const id object = [notification object];
    const bool hasAddress = [object isKindOfClass:[NSValue class]];
    // A copy: the call may end the observation.
    const auto call = observer;
    call(hasAddress ? [object pointerValue] : nullptr);
}

@end

namespace brisel::platform::macos {

Subscription NotificationCenter::addObserver(std::string_view name, Observer observer) {
    const auto receiver = std::make_shared<Owned<BriselNotificationObserver*>>(
        [[BriselNotificationObserver alloc] init]);
    receiver->get()->observer = std::move(observer);
    [[NSNotificationCenter defaultCenter] addObserver:receiver->get()
                                             selector:@selector(receive:)
                                                 name:nsString(name)
                                               object:nil];
    return Subscription(
        [receiver] { [[NSNotificationCenter defaultCenter] removeObserver:receiver->get()]; });
}

void NotificationCenter::postNotificationName(std::string_view name, const void* object) {
    guarded("deliver a notification", [&] {
        [[NSNotificationCenter defaultCenter]
            postNotificationName:nsString(name)
                          object:[NSValue valueWithPointer:object]];
    });
}

}  // namespace brisel::platform::macos
