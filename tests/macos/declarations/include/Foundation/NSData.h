// Declares NSData.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>
#import <Foundation/NSRange.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSData : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
// May be null if empty.
@property(readonly) const void* bytes NS_RETURNS_INNER_POINTER;
+ (instancetype)data;
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
- (instancetype)initWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
- (void)getBytes:(void*)buffer length:(NSUInteger)length;
- (BOOL)isEqualToData:(NSData*)other;
@end

@interface NSMutableData : NSData
@property(readonly) void* mutableBytes NS_RETURNS_INNER_POINTER;
- (void)appendData:(NSData*)other;
- (void)appendBytes:(const void*)bytes length:(NSUInteger)length;
@end

NS_ASSUME_NONNULL_END
