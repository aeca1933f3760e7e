// Declares UNUserNotificationCenter and its delegate.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNError.h>
#import <UserNotifications/UNNotificationCategory.h>
#import <UserNotifications/UNNotificationResponse.h>

NS_ASSUME_NONNULL_BEGIN

@protocol UNUserNotificationCenterDelegate;

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
    UNAuthorizationOptionBadge = (1 << 0),
    UNAuthorizationOptionSound = (1 << 1),
    UNAuthorizationOptionAlert = (1 << 2),
    UNAuthorizationOptionCarPlay = (1 << 3),
    UNAuthorizationOptionCriticalAlert = (1 << 4),
    UNAuthorizationOptionProvidesAppNotificationSettings = (1 << 5),
    UNAuthorizationOptionProvisional = (1 << 6),
} API_AVAILABLE(macos(10.14));

static const UNAuthorizationOptions UNAuthorizationOptionNone API_AVAILABLE(macos(10.14)) = 0;

typedef NS_OPTIONS(NSUInteger, UNNotificationPresentationOptions) {
    UNNotificationPresentationOptionBadge = (1 << 0),
    UNNotificationPresentationOptionSound = (1 << 1),
    UNNotificationPresentationOptionAlert API_DEPRECATED(
        "use UNNotificationPresentationOptionList and UNNotificationPresentationOptionBanner",
        macos(10.14, 11.0)) = (1 << 2),
    UNNotificationPresentationOptionList API_AVAILABLE(macos(11.0)) = (1 << 3),
    UNNotificationPresentationOptionBanner API_AVAILABLE(macos(11.0)) = (1 << 4),
} API_AVAILABLE(macos(10.14));

static const UNNotificationPresentationOptions UNNotificationPresentationOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

// Handlers may run on any thread.
API_AVAILABLE(macos(10.14))
@interface UNUserNotificationCenter : NSObject
@property(weak, nullable) id<UNUserNotificationCenterDelegate> delegate;
// Raises an exception outside an application bundle.
+ (UNUserNotificationCenter*)currentNotificationCenter;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:
                          (void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)setNotificationCategories:(NSSet<UNNotificationCategory*>*)categories;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;
@end

API_AVAILABLE(macos(10.14))
@protocol UNUserNotificationCenterDelegate <NSObject>
@optional
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:
             (void (^)(UNNotificationPresentationOptions options))completionHandler;
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
    didReceiveNotificationResponse:(UNNotificationResponse*)response
             withCompletionHandler:(void (^)(void))completionHandler;
@end

NS_ASSUME_NONNULL_END
