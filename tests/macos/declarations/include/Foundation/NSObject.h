// Declares NSCopying, NSCoding and what else Foundation adds to NSObject.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

@class NSArray<ObjectType>, NSDictionary<KeyType, ObjectType>;
@class NSCoder;

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

@protocol NSMutableCopying
- (id)mutableCopyWithZone:(nullable NSZone*)zone;
@end

@protocol NSCoding
- (void)encodeWithCoder:(NSCoder*)coder;
- (nullable instancetype)initWithCoder:(NSCoder*)coder;
@end

@protocol NSSecureCoding <NSCoding>
@property(class, readonly) BOOL supportsSecureCoding;
@end

CF_EXTERN_C_BEGIN
// These transfer ownership between Core Foundation and Objective-C.
CFTypeRef _Nullable CFBridgingRetain(id _Nullable object) CF_RETURNS_RETAINED;
id _Nullable CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) _Nullable object);
CF_EXTERN_C_END

NS_ASSUME_NONNULL_END
