// Declares UNNotificationResponse.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNNotification.h>

NS_ASSUME_NONNULL_BEGIN

// The user clicked the notification, or dismissed it.
extern NSString* const UNNotificationDefaultActionIdentifier API_AVAILABLE(macos(10.14));
extern NSString* const UNNotificationDismissActionIdentifier API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.14))
@interface UNNotificationResponse : NSObject
@property(readonly, copy) UNNotification* notification;
@property(readonly, copy) NSString* actionIdentifier;
@end

NS_ASSUME_NONNULL_END
