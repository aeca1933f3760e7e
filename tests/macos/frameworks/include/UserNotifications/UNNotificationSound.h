// Declares UNNotificationSound.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
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
