// Declares the triggers of a notification.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.14))
@interface UNNotificationTrigger : NSObject
@property(readonly) BOOL repeats;
@end

// An interval is greater than 0 seconds, and at least 60 if it repeats.
API_AVAILABLE(macos(10.14))
@interface UNTimeIntervalNotificationTrigger : UNNotificationTrigger
@property(readonly) NSTimeInterval timeInterval;
+ (instancetype)triggerWithTimeInterval:(NSTimeInterval)timeInterval repeats:(BOOL)repeats;
@end

NS_ASSUME_NONNULL_END
