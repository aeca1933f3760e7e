// The values of the stand-in User Notifications, as the stand-ins look into them.
// SPDX-License-Identifier: MIT
#pragma once

#import <UserNotifications/UserNotifications.h>

@interface UNNotificationSound (Stage)
- (NSString*)name;
@end

@interface UNNotificationResponse (Stage)
+ (instancetype)responseTo:(UNNotificationRequest*)request action:(NSString*)identifier;
@end
