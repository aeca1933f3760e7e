// Declares UNNotificationCategory.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNNotificationAction.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, UNNotificationCategoryOptions) {
    UNNotificationCategoryOptionCustomDismissAction = (1 << 0),
    UNNotificationCategoryOptionHiddenPreviewsShowTitle = (1 << 2),
    UNNotificationCategoryOptionHiddenPreviewsShowSubtitle = (1 << 3),
} API_AVAILABLE(macos(10.14));

static const UNNotificationCategoryOptions UNNotificationCategoryOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

API_AVAILABLE(macos(10.14))
@interface UNNotificationCategory : NSObject
@property(copy, readonly) NSString* identifier;
@property(copy, readonly) NSArray<UNNotificationAction*>* actions;
+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options;
@end

NS_ASSUME_NONNULL_END
