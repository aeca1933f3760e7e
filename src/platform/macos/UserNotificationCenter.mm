// Notifications with buttons, by the User Notifications framework.
// SPDX-License-Identifier: MIT
#import "platform/macos/UserNotificationCenter.h"

#include <memory>
#include <utility>

#include "platform/macos/Exceptions.h"
#include "platform/macos/NotificationDelegate.h"
#include "platform/macos/Text.h"

namespace brisel::platform::macos {

namespace {

bool isApplicationInBundle() {
    NSBundle* const bundle = [NSBundle mainBundle];
    return [bundle bundleIdentifier] != nil && [[bundle bundlePath] hasSuffix:@".app"];
}

/// Nil outside an application bundle, where the system would raise an exception.
UNUserNotificationCenter* currentCenter() {
    if (!isApplicationInBundle()) return nil;
    UNUserNotificationCenter* center = nil;
    guarded("reach the notification center",
            [&] { center = [UNUserNotificationCenter currentNotificationCenter]; });
    return center;
}

Error noCenter() {
    return {.localizedDescription = "This process cannot show notifications.",
            .localizedFailureReason = std::nullopt};
}

// `guarded` has logged the exception.
Error refused() {
    return {.localizedDescription = "The system refused it.",
            .localizedFailureReason = std::nullopt};
}

std::optional<Error> optionalError(NSError* error) {
    return error != nil ? std::optional(errorFrom(error)) : std::nullopt;
}

UNNotificationCategory* categoryFrom(const NotificationCategory& category) {
    NSMutableArray<UNNotificationAction*>* const actions = [NSMutableArray array];
    for (const auto& [identifier, title] : category.actions) {
        [actions
            addObject:[UNNotificationAction actionWithIdentifier:nsString(identifier)
                                                           title:nsString(title)
                                                         options:UNNotificationActionOptionNone]];
    }
    return [UNNotificationCategory categoryWithIdentifier:nsString(category.identifier)
                                                  actions:actions
                                        intentIdentifiers:[NSArray array]
                                                  options:UNNotificationCategoryOptionNone];
}

Owned<UNMutableNotificationContent*> contentFrom(const NotificationRequest& request) {
    Owned<UNMutableNotificationContent*> content([[UNMutableNotificationContent alloc] init]);
    NSMutableDictionary<NSString*, NSString*>* const userInfo = [NSMutableDictionary dictionary];
    for (const auto& [key, value] : request.userInfo)
        [userInfo setObject:nsString(value) forKey:nsString(key)];
    [content.get() setTitle:nsString(request.title)];
    [content.get() setBody:nsString(request.body)];
    [content.get() setSound:[UNNotificationSound soundNamed:nsString(request.soundName)]];
    [content.get() setCategoryIdentifier:nsString(request.categoryIdentifier)];
    [content.get() setUserInfo:userInfo];
    return content;
}

UNNotificationRequest* requestFrom(const NotificationRequest& request) {
    const auto content = contentFrom(request);
    const auto seconds = std::chrono::duration<double>(request.delay).count();
    return [UNNotificationRequest
        requestWithIdentifier:nsString(request.identifier)
                      content:content.get()
                      trigger:[UNTimeIntervalNotificationTrigger triggerWithTimeInterval:seconds
                                                                                 repeats:NO]];
}

}  // namespace

UserNotificationCenter::UserNotificationCenter()
    : delegate_([[BriselNotificationDelegate alloc] init]) {}

Subscription UserNotificationCenter::setDelegate(ResponseHandler handler) {
    const auto kept = std::make_shared<const ResponseHandler>(std::move(handler));
    delegate_.get()->handler = kept;
    guarded("deliver responses to notifications",
            [this] { [currentCenter() setDelegate:delegate_.get()]; });
    return Subscription([delegate = delegate_.get(), kept] {
        // A later call may have set another handler.
        if (delegate->handler == kept) delegate->handler = nullptr;
    });
}

void UserNotificationCenter::setNotificationCategories(
    const std::vector<NotificationCategory>& categories) {
    guarded("register notification categories", [&] {
        NSMutableSet<UNNotificationCategory*>* const set = [NSMutableSet set];
        for (const auto& category : categories)
            [set addObject:categoryFrom(category)];
        [currentCenter() setNotificationCategories:set];
    });
}

void UserNotificationCenter::requestAuthorization(unsigned options, AuthorizationHandler handler) {
    UNUserNotificationCenter* const center = currentCenter();
    if (center == nil) {
        handler(false, noCenter());
        return;
    }
    // May run later, on any thread. Defined outside the lambda, which captures by reference: the
    // block must copy `handler`.
    void (^const completion)(BOOL, NSError*) = ^(BOOL granted, NSError* error) {
      handler(granted, optionalError(error));
    };
    const bool asked = guarded("ask whether notifications are allowed", [&] {
        [center requestAuthorizationWithOptions:static_cast<UNAuthorizationOptions>(options)
                              completionHandler:completion];
    });
    if (!asked) handler(false, refused());
}

void UserNotificationCenter::addNotificationRequest(const NotificationRequest& request,
                                                    AddHandler handler) {
    @autoreleasepool {
        UNUserNotificationCenter* const center = currentCenter();
        if (center == nil) {
            handler(noCenter());
            return;
        }
        // See requestAuthorization.
        void (^const completion)(NSError*) = ^(NSError* error) {
          handler(optionalError(error));
        };
        const bool added = guarded("show a notification", [&] {
            [center addNotificationRequest:requestFrom(request) withCompletionHandler:completion];
        });
        if (!added) handler(refused());
    }
}

}  // namespace brisel::platform::macos
