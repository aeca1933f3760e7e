// The sound of a notification.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* UNNotificationSoundName;

API_AVAILABLE(macos(10.14))
@interface UNNotificationSound : NSObject
+ (instancetype)soundNamed:(UNNotificationSoundName)name;
@end

NS_ASSUME_NONNULL_END
