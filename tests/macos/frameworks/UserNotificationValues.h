// The values of the stand-in User Notifications, as subclasses of Apple's classes.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

@interface StageSound : UNNotificationSound {
  @public
    NSString* name;
}
@end

@interface StageAction : UNNotificationAction {
  @public
    NSString* identifier_;
    NSString* title_;
}
@end

@interface StageCategory : UNNotificationCategory {
  @public
    NSString* identifier_;
    NSArray* actions_;
}
@end

@interface StageTrigger : UNTimeIntervalNotificationTrigger {
  @public
    NSTimeInterval timeInterval_;
    BOOL repeats_;
}
@end

@interface StageContent : UNMutableNotificationContent {
  @public
    NSString* title_;
    NSString* body_;
    UNNotificationSound* sound_;
    NSString* categoryIdentifier_;
    NSDictionary* userInfo_;
}
@end

@interface StageRequest : UNNotificationRequest {
  @public
    NSString* identifier_;
    UNNotificationContent* content_;
    UNNotificationTrigger* trigger_;
}
@end
