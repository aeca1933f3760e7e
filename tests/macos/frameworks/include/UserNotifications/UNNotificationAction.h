// Declares UNNotificationAction.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
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
