// Declares NSValue and NSNumber.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSString;

@interface NSValue : NSObject <NSCopying, NSSecureCoding>
- (void)getValue:(void*)value size:(NSUInteger)size API_AVAILABLE(macos(10.13));
@property(readonly) const char* objCType NS_RETURNS_INNER_POINTER;
- (instancetype)initWithBytes:(const void*)value
                     objCType:(const char*)type NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
+ (NSValue*)valueWithPointer:(nullable const void*)pointer;
@property(nullable, readonly) void* pointerValue;
+ (NSValue*)valueWithNonretainedObject:(nullable id)object;
@property(nullable, readonly) id nonretainedObjectValue;
@end

@interface NSNumber : NSValue
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (NSNumber*)initWithInt:(int)value NS_DESIGNATED_INITIALIZER;
- (NSNumber*)initWithBool:(BOOL)value NS_DESIGNATED_INITIALIZER;
@property(readonly) int intValue;
@property(readonly) unsigned int unsignedIntValue;
@property(readonly) long longValue;
@property(readonly) unsigned long unsignedLongValue;
@property(readonly) long long longLongValue;
@property(readonly) unsigned long long unsignedLongLongValue;
@property(readonly) float floatValue;
@property(readonly) double doubleValue;
@property(readonly) BOOL boolValue;
@property(readonly) NSInteger integerValue;
@property(readonly) NSUInteger unsignedIntegerValue;
@property(readonly, copy) NSString* stringValue;
- (NSComparisonResult)compare:(NSNumber*)other;
- (BOOL)isEqualToNumber:(NSNumber*)number;
+ (NSNumber*)numberWithChar:(char)value;
+ (NSNumber*)numberWithUnsignedChar:(unsigned char)value;
+ (NSNumber*)numberWithShort:(short)value;
+ (NSNumber*)numberWithUnsignedShort:(unsigned short)value;
+ (NSNumber*)numberWithInt:(int)value;
+ (NSNumber*)numberWithUnsignedInt:(unsigned int)value;
+ (NSNumber*)numberWithLong:(long)value;
+ (NSNumber*)numberWithUnsignedLong:(unsigned long)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
+ (NSNumber*)numberWithUnsignedLongLong:(unsigned long long)value;
+ (NSNumber*)numberWithFloat:(float)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithInteger:(NSInteger)value;
+ (NSNumber*)numberWithUnsignedInteger:(NSUInteger)value;
@end

NS_ASSUME_NONNULL_END
