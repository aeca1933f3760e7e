// A button of a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotificationDefines.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, UNNotificationActionOptions) {
    UNNotificationActionOptionAuthenticationRequired = (1 << 0),
    UNNotificationActionOptionDestructive = (1 << 1),
    UNNotificationActionOptionForeground = (1 << 2),
} API_AVAILABLE(macos(10.14));

static const UNNotificationActionOptions UNNotificationActionOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

API_AVAILABLE(macos(10.14))
@interface UNNotificationAction : NSObject {
    NSString* _identifier;
    NSString* _title;
    UNNotificationActionOptions _options;
}
@property(copy, readonly) NSString* identifier;
@property(copy, readonly) NSString* title;
@property(readonly) UNNotificationActionOptions options;
+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options;
- (instancetype)init BRISEL_UN_NOT_YOURS;
@end

NS_ASSUME_NONNULL_END
