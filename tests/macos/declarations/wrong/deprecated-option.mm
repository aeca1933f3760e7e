// An option is used that has been deprecated since macOS 11.
// SPDX-License-Identifier: MIT
//
// says: 'UNNotificationPresentationOptionAlert' is deprecated: first deprecated in macOS 11.0
#import <UserNotifications/UserNotifications.h>

const UNNotificationPresentationOptions options = UNNotificationPresentationOptionAlert;
