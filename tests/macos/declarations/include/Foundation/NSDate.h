// Declares NSDate.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

typedef double NSTimeInterval;

@interface NSDate : NSObject <NSCopying, NSSecureCoding>
@property(readonly) NSTimeInterval timeIntervalSinceReferenceDate;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithTimeIntervalSinceReferenceDate:(NSTimeInterval)interval
    NS_DESIGNATED_INITIALIZER;
+ (instancetype)date;
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@property(readonly) NSTimeInterval timeIntervalSinceNow;
@property(class, readonly, copy) NSDate* distantFuture;
@property(class, readonly, copy) NSDate* distantPast;
@end

NS_ASSUME_NONNULL_END
