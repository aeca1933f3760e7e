// What objects of Foundation can do beyond the root class.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
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
// These hand over a reference, out of and into automatic counting.
CFTypeRef _Nullable CFBridgingRetain(id _Nullable object) CF_RETURNS_RETAINED;
id _Nullable CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) _Nullable object);
CF_EXTERN_C_END

NS_ASSUME_NONNULL_END
