// What the user did with a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotification.h>

NS_ASSUME_NONNULL_BEGIN

// The user pressed the notification itself, or closed it.
extern NSString* const UNNotificationDefaultActionIdentifier API_AVAILABLE(macos(10.14));
extern NSString* const UNNotificationDismissActionIdentifier API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.14))
@interface UNNotificationResponse : NSObject {
    UNNotification* _notification;
    NSString* _actionIdentifier;
}
@property(readonly, copy) UNNotification* notification;
@property(readonly, copy) NSString* actionIdentifier;
- (instancetype)init BRISEL_UN_NOT_YOURS;
@end

NS_ASSUME_NONNULL_END
