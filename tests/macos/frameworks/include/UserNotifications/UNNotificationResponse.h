// What the user did with a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#import <UserNotifications/UNNotification.h>

NS_ASSUME_NONNULL_BEGIN

// The user pressed the notification itself, or closed it.
extern NSString* const UNNotificationDefaultActionIdentifier API_AVAILABLE(macos(10.14));
extern NSString* const UNNotificationDismissActionIdentifier API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.14))
@interface UNNotificationResponse : NSObject
@property(readonly, copy) UNNotification* notification;
@property(readonly, copy) NSString* actionIdentifier;
@end

NS_ASSUME_NONNULL_END
