// A notification that is shown.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#import <UserNotifications/UNNotificationRequest.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotification : NSObject
@property(readonly, copy) UNNotificationRequest* request;
@end

NS_ASSUME_NONNULL_END
