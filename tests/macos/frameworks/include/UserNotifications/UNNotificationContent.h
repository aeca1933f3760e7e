// What a notification says.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotificationSound.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationContent : NSObject <NSCopying, NSMutableCopying> {
    NSString* _title;
    NSString* _subtitle;
    NSString* _body;
    NSString* _categoryIdentifier;
    NSString* _threadIdentifier;
    UNNotificationSound* _sound;
    NSDictionary* _userInfo;
}
@property(readonly, copy) NSString* title;
@property(readonly, copy) NSString* subtitle;
@property(readonly, copy) NSString* body;
@property(readonly, copy) NSString* categoryIdentifier;
@property(readonly, copy) NSString* threadIdentifier;
@property(readonly, copy, nullable) UNNotificationSound* sound;
@property(readonly, copy) NSDictionary* userInfo;
@end

// What is in `userInfo` must be of the kinds that preferences can hold.
API_AVAILABLE(macos(10.14))
@interface UNMutableNotificationContent : UNNotificationContent
@property(readwrite, copy) NSString* title;
@property(readwrite, copy) NSString* subtitle;
@property(readwrite, copy) NSString* body;
@property(readwrite, copy) NSString* categoryIdentifier;
@property(readwrite, copy) NSString* threadIdentifier;
@property(readwrite, copy, nullable) UNNotificationSound* sound;
@property(readwrite, copy) NSDictionary* userInfo;
@end

NS_ASSUME_NONNULL_END
