// Errors of User Notifications.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

extern NSString* const UNErrorDomain API_AVAILABLE(macos(10.14));

typedef NS_ENUM(NSInteger, UNErrorCode) {
    UNErrorCodeNotificationsNotAllowed = 1,
    UNErrorCodeAttachmentInvalidURL = 100,
    UNErrorCodeNotificationInvalidNoDate = 1400,
    UNErrorCodeNotificationInvalidNoContent = 1401,
} API_AVAILABLE(macos(10.14));

NS_ASSUME_NONNULL_END
