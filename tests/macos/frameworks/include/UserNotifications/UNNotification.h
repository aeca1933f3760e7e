// A notification that is shown.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <UserNotifications/UNNotificationRequest.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotification : NSObject {
    NSDate* _date;
    UNNotificationRequest* _request;
}
@property(readonly, copy) NSDate* date;
@property(readonly, copy) UNNotificationRequest* request;
- (instancetype)init BRISEL_UN_NOT_YOURS;
@end

NS_ASSUME_NONNULL_END
