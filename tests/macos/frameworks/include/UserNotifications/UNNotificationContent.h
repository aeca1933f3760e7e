// Declares UNNotificationContent.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNNotificationSound.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationContent : NSObject
@property(readonly, copy) NSString* title;
@property(readonly, copy) NSString* body;
@property(readonly, copy) NSString* categoryIdentifier;
@property(readonly, copy, nullable) UNNotificationSound* sound;
@property(readonly, copy) NSDictionary* userInfo;
@end

// `userInfo` may hold property-list types only.
API_AVAILABLE(macos(10.14))
@interface UNMutableNotificationContent : UNNotificationContent
@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy) NSString* categoryIdentifier;
@property(copy, nullable) UNNotificationSound* sound;
@property(copy) NSDictionary* userInfo;
@end

NS_ASSUME_NONNULL_END
