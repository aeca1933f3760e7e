// Notification responses of the stand-in User Notifications.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

@interface StageNotification : UNNotification {
  @public
    UNNotificationRequest* request_;
}
@end

@interface StageResponse : UNNotificationResponse {
  @public
    UNNotification* notification_;
    NSString* actionIdentifier_;
}
@end
