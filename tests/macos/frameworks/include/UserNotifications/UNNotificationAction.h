// A button of a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, UNNotificationActionOptions) {
    UNNotificationActionOptionAuthenticationRequired = (1 << 0),
    UNNotificationActionOptionDestructive = (1 << 1),
    UNNotificationActionOptionForeground = (1 << 2),
} API_AVAILABLE(macos(10.14));

static const UNNotificationActionOptions UNNotificationActionOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

API_AVAILABLE(macos(10.14))
@interface UNNotificationAction : NSObject
@property(copy, readonly) NSString* identifier;
@property(copy, readonly) NSString* title;
+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options;
@end

NS_ASSUME_NONNULL_END
