// The wish to show a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotificationContent.h>
#import <UserNotifications/UNNotificationTrigger.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationRequest : NSObject {
    NSString* _identifier;
    UNNotificationContent* _content;
    UNNotificationTrigger* _trigger;
}
@property(readonly, copy) NSString* identifier;
@property(readonly, copy) UNNotificationContent* content;
@property(readonly, copy, nullable) UNNotificationTrigger* trigger;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
- (instancetype)init BRISEL_UN_NOT_YOURS;
@end

NS_ASSUME_NONNULL_END
