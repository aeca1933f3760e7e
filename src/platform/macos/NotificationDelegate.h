// Notification center delegate that delivers responses on the main thread.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

#include <memory>

#include "platform/UserNotificationCenter.h"

/// Responses may arrive on any thread. Calls `handler` on the main thread; for a response from
/// another thread, in the run loop's default mode.
@interface BriselNotificationDelegate : NSObject <UNUserNotificationCenterDelegate> {
  @public
    std::shared_ptr<const brisel::platform::UserNotificationCenter::ResponseHandler> handler;
}
@end
