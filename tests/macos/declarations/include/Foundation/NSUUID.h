// Declares NSUUID.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSUUID : NSObject <NSCopying, NSSecureCoding>
+ (instancetype)UUID;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithUUIDString:(NSString*)text;
@property(readonly, copy) NSString* UUIDString;
@end

NS_ASSUME_NONNULL_END
