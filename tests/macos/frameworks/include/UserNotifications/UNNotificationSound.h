// The sound of a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotificationDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* UNNotificationSoundName;

API_AVAILABLE(macos(10.14))
@interface UNNotificationSound : NSObject {
    UNNotificationSoundName _name;
}
@property(class, copy, readonly) UNNotificationSound* defaultSound;
+ (instancetype)soundNamed:(UNNotificationSoundName)name;
- (instancetype)init BRISEL_UN_NOT_YOURS;
@end

NS_ASSUME_NONNULL_END
