// Declares UNNotification.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <UserNotifications/UNNotificationRequest.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotification : NSObject
@property(readonly, copy) UNNotificationRequest* request;
@end

NS_ASSUME_NONNULL_END
