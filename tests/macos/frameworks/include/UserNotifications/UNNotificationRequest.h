// Declares UNNotificationRequest.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNNotificationContent.h>
#import <UserNotifications/UNNotificationTrigger.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationRequest : NSObject
@property(readonly, copy) NSString* identifier;
@property(readonly, copy) UNNotificationContent* content;
@property(readonly, copy, nullable) UNNotificationTrigger* trigger;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
@end

NS_ASSUME_NONNULL_END
