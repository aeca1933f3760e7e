// Helpers that an application registers itself.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(13.0))
@interface SMAppService : NSObject
// The helper of that bundle identifier in Contents/Library/LoginItems.
+ (instancetype)loginItemServiceWithIdentifier:(NSString*)identifier;
- (BOOL)registerAndReturnError:(NSError* _Nullable* _Nullable)error;
- (BOOL)unregisterAndReturnError:(NSError* _Nullable* _Nullable)error;
@end

NS_ASSUME_NONNULL_END
