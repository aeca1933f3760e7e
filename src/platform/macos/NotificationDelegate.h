// The notification center's delegate: brings the user's responses to the main thread.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include <memory>

#include "platform/UserNotificationCenter.h"

/// The center may deliver a response on any thread; `handler` is called on the main thread, in the
/// main loop's default mode where the response came elsewhere.
@interface BriselNotificationDelegate : NSObject <UNUserNotificationCenterDelegate> {
  @public
    std::shared_ptr<const brisel::platform::UserNotificationCenter::ResponseHandler> handler;
}
@end
