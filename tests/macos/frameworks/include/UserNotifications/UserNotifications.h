// User Notifications, as much of them as the application uses.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

// Errors of User Notifications.
extern NSString* const UNErrorDomain API_AVAILABLE(macos(10.14));

// The sound of a notification.
typedef NSString* UNNotificationSoundName;

API_AVAILABLE(macos(10.14))
@interface UNNotificationSound : NSObject {
    NSString* name_;
}
+ (instancetype)soundNamed:(UNNotificationSoundName)name;
@end

// What a notification says.
API_AVAILABLE(macos(10.14))
@interface UNNotificationContent : NSObject {
    NSString* title_;
    NSString* body_;
    NSString* categoryIdentifier_;
    UNNotificationSound* sound_;
    NSDictionary* userInfo_;
}
@property(readonly, copy) NSString* title;
@property(readonly, copy) NSString* body;
@property(readonly, copy) NSString* categoryIdentifier;
@property(readonly, copy, nullable) UNNotificationSound* sound;
@property(readonly, copy) NSDictionary* userInfo;
@end

// What is in `userInfo` must be of the kinds that preferences can hold.
API_AVAILABLE(macos(10.14))
@interface UNMutableNotificationContent : UNNotificationContent
@property(copy) NSString* title;
@property(copy) NSString* body;
@property(copy) NSString* categoryIdentifier;
@property(copy, nullable) UNNotificationSound* sound;
@property(copy) NSDictionary* userInfo;
@end

// When a notification is shown.
API_AVAILABLE(macos(10.14))
@interface UNNotificationTrigger : NSObject {
    BOOL repeats_;
}
@property(readonly) BOOL repeats;
@end

// An interval is greater than 0, and at least 60 seconds where it repeats.
API_AVAILABLE(macos(10.14))
@interface UNTimeIntervalNotificationTrigger : UNNotificationTrigger {
    NSTimeInterval timeInterval_;
}
@property(readonly) NSTimeInterval timeInterval;
+ (instancetype)triggerWithTimeInterval:(NSTimeInterval)timeInterval repeats:(BOOL)repeats;
@end

// The wish to show a notification.
API_AVAILABLE(macos(10.14))
@interface UNNotificationRequest : NSObject {
    NSString* identifier_;
    UNNotificationContent* content_;
    UNNotificationTrigger* trigger_;
}
@property(readonly, copy) NSString* identifier;
@property(readonly, copy) UNNotificationContent* content;
@property(readonly, copy, nullable) UNNotificationTrigger* trigger;
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(nullable UNNotificationTrigger*)trigger;
@end

// A notification that is shown.
API_AVAILABLE(macos(10.14))
@interface UNNotification : NSObject {
    UNNotificationRequest* request_;
}
@property(readonly, copy) UNNotificationRequest* request;
@end

// A button of a notification.
typedef NS_OPTIONS(NSUInteger, UNNotificationActionOptions) {
    UNNotificationActionOptionForeground = (1 << 2),
} API_AVAILABLE(macos(10.14));

static const UNNotificationActionOptions UNNotificationActionOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

API_AVAILABLE(macos(10.14))
@interface UNNotificationAction : NSObject {
    NSString* identifier_;
    NSString* title_;
}
@property(copy, readonly) NSString* identifier;
@property(copy, readonly) NSString* title;
+ (instancetype)actionWithIdentifier:(NSString*)identifier
                               title:(NSString*)title
                             options:(UNNotificationActionOptions)options;
@end

// A kind of notification, with its buttons.
typedef NS_OPTIONS(NSUInteger, UNNotificationCategoryOptions) {
    UNNotificationCategoryOptionHiddenPreviewsShowSubtitle = (1 << 3),
} API_AVAILABLE(macos(10.14));

static const UNNotificationCategoryOptions UNNotificationCategoryOptionNone
    API_AVAILABLE(macos(10.14)) = 0;

API_AVAILABLE(macos(10.14))
@interface UNNotificationCategory : NSObject {
    NSString* identifier_;
    NSArray<UNNotificationAction*>* actions_;
}
@property(copy, readonly) NSString* identifier;
@property(copy, readonly) NSArray<UNNotificationAction*>* actions;
+ (instancetype)categoryWithIdentifier:(NSString*)identifier
                               actions:(NSArray<UNNotificationAction*>*)actions
                     intentIdentifiers:(NSArray<NSString*>*)intentIdentifiers
                               options:(UNNotificationCategoryOptions)options;
@end

// What the user did with a notification.

// The user pressed the notification itself, or closed it.
extern NSString* const UNNotificationDefaultActionIdentifier API_AVAILABLE(macos(10.14));
extern NSString* const UNNotificationDismissActionIdentifier API_AVAILABLE(macos(10.14));

API_AVAILABLE(macos(10.14))
@interface UNNotificationResponse : NSObject {
    UNNotification* notification_;
    NSString* actionIdentifier_;
}
@property(readonly, copy) UNNotification* notification;
@property(readonly, copy) NSString* actionIdentifier;
@end

// The center that shows notifications, and its delegate.
@protocol UNUserNotificationCenterDelegate;

typedef NS_OPTIONS(NSUInteger, UNAuthorizationOptions) {
    UNAuthorizationOptionSound = (1 << 1),
    UNAuthorizationOptionAlert = (1 << 2),
} API_AVAILABLE(macos(10.14));

typedef NS_OPTIONS(NSUInteger, UNNotificationPresentationOptions) {
    UNNotificationPresentationOptionList API_AVAILABLE(macos(11.0)) = (1 << 3),
    UNNotificationPresentationOptionBanner API_AVAILABLE(macos(11.0)) = (1 << 4),
} API_AVAILABLE(macos(10.14));

typedef NS_ENUM(NSInteger, UNAuthorizationStatus) {
    UNAuthorizationStatusNotDetermined,
    UNAuthorizationStatusDenied,
    UNAuthorizationStatusAuthorized,
    UNAuthorizationStatusProvisional,
} API_AVAILABLE(macos(10.14));

typedef NS_ENUM(NSInteger, UNAlertStyle) {
    UNAlertStyleNone,
    UNAlertStyleBanner,
    UNAlertStyleAlert,
} API_AVAILABLE(macos(10.14));

// What the user allows the application.
API_AVAILABLE(macos(10.14))
@interface UNNotificationSettings : NSObject
@property(readonly) UNAuthorizationStatus authorizationStatus;
@property(readonly) UNAlertStyle alertStyle;
@end

// Handlers may be called on threads of the system's own.
API_AVAILABLE(macos(10.14))
@interface UNUserNotificationCenter : NSObject
@property(weak, nullable) id<UNUserNotificationCenterDelegate> delegate;
// Raises an exception in a process that is no application in a bundle.
+ (UNUserNotificationCenter*)currentNotificationCenter;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:
                          (void (^)(BOOL granted, NSError* _Nullable error))completionHandler;
- (void)setNotificationCategories:(NSSet<UNNotificationCategory*>*)categories;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(nullable void (^)(NSError* _Nullable error))completionHandler;
@end

// For scripts/report-on-mac; the stand-in frameworks do not implement it.
@interface UNUserNotificationCenter (Settings)
- (void)getNotificationSettingsWithCompletionHandler:
    (void (^)(UNNotificationSettings* settings))completionHandler;
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
