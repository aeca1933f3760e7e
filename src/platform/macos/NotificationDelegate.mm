// Notification center delegate that delivers responses on the main thread.
// SPDX-License-Identifier: MIT
#import "platform/macos/NotificationDelegate.h"

#include <Block.h>

#include <memory>

#include "platform/macos/Owned.h"
#include "platform/macos/Text.h"

using brisel::platform::NotificationResponse;
using brisel::platform::UserInfo;
using brisel::platform::UserNotificationCenter;
using brisel::platform::macos::Owned;
using brisel::platform::macos::stdString;

/// A response passed to the main thread.
@interface BriselResponse : NSObject {
  @public
    NotificationResponse response;
    UserNotificationCenter::CompletionHandler completionHandler;
}
@end

@implementation BriselResponse
@end

namespace {

// Skips non-string entries; they are not ours.
UserInfo textsOf(NSDictionary* userInfo) {
    UserInfo texts;
    for (id key in [userInfo allKeys]) {
        const id value = [userInfo objectForKey:key];
        const bool isText =
            [key isKindOfClass:[NSString class]] && [value isKindOfClass:[NSString class]];
        if (isText) texts[stdString(key)] = stdString(value);
    }
    return texts;
}

NotificationResponse valueOf(UNNotificationResponse* response) {
    UNNotificationRequest* const request = [[response notification] request];
    return {.requestIdentifier = stdString([request identifier]),
            .actionIdentifier = stdString([response actionIdentifier]),
            .userInfo = textsOf([[request content] userInfo])};
}

UserNotificationCenter::CompletionHandler keptHandler(void (^handler)(void)) {
    using Handler = void (^)(void);
    const std::shared_ptr<void> kept(reinterpret_cast<void*>(Block_copy(handler)),
                                     [](void* block) { Block_release(block); });
    return [kept] { reinterpret_cast<Handler>(kept.get())(); };
}

}  // namespace

@implementation BriselNotificationDelegate

- (void)deliver:(BriselResponse*)delivery {
    // Keeps the handler alive: the call may reset it.
    const auto call = handler;
    if (call) (*call)(delivery->response, delivery->completionHandler);
}

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler {
    (void)center;
    const Owned<BriselResponse*> delivery([[BriselResponse alloc] init]);
    delivery.get()->response = valueOf(response);
    delivery.get()->completionHandler = keptHandler(completionHandler);
    if ([NSThread isMainThread]) {
        [self deliver:delivery.get()];
        return;
    }
    [self performSelectorOnMainThread:@selector(deliver:)
                           withObject:delivery.get()
                        waitUntilDone:NO
                                modes:[NSArray arrayWithObject:NSDefaultRunLoopMode]];
}

@end
