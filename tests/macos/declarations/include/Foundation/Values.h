// Objects, texts, numbers and other values.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <objc/NSObject.h>
#include <os/availability.h>

// What every header of Foundation needs.

#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_ENUM(...) CF_ENUM(__VA_ARGS__)
#define NS_OPTIONS(type, name) CF_OPTIONS(type, name)
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_FORMAT_FUNCTION(text, first) __attribute__((format(__NSString__, text, first)))
#define NS_FORMAT_ARGUMENT(number) __attribute__((format_arg(number)))
#define NS_NOESCAPE __attribute__((noescape))
#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel(0, 1)))
#define NS_REQUIRES_SUPER __attribute__((objc_requires_super))
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))
#define NS_RETURNS_RETAINED __attribute__((ns_returns_retained))
#define NS_UNAVAILABLE __attribute__((unavailable))

#define NSIntegerMax __LONG_MAX__
#define NSIntegerMin (-__LONG_MAX__ - 1L)
#define NSUIntegerMax (__LONG_MAX__ * 2UL + 1UL)

CF_EXTERN_C_BEGIN
NS_ASSUME_NONNULL_BEGIN

@class NSString;
typedef NSString* NSExceptionName;
typedef NSString* NSRunLoopMode;

typedef NS_ENUM(NSInteger, NSComparisonResult) {
    NSOrderedAscending = -1L,
    NSOrderedSame,
    NSOrderedDescending,
};

static const NSInteger NSNotFound = NSIntegerMax;

extern SEL NSSelectorFromString(NSString* name);
extern Class _Nullable NSClassFromString(NSString* name);
extern void NSLog(NSString* format, ...) NS_FORMAT_FUNCTION(1, 2);

NS_ASSUME_NONNULL_END
CF_EXTERN_C_END

NS_ASSUME_NONNULL_BEGIN

// What objects of Foundation can do beyond the root class.
@class NSArray<ObjectType>, NSDictionary<KeyType, ObjectType>;
@class NSCoder;

@protocol NSCopying
@end

@protocol NSMutableCopying
@end

@protocol NSCoding
@end

@protocol NSSecureCoding <NSCoding>
@end

CF_EXTERN_C_BEGIN
// These hand over a reference, out of and into automatic counting.
CFTypeRef _Nullable CFBridgingRetain(id _Nullable object) CF_RETURNS_RETAINED;
id _Nullable CFBridgingRelease(CFTypeRef __attribute__((cf_consumed)) _Nullable object);
CF_EXTERN_C_END

NS_ASSUME_NONNULL_END

// Ranges of places in a text or an array.
CF_EXTERN_C_BEGIN

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    NSRange range = {location, length};
    return range;
}

CF_EXTERN_C_END

NS_ASSUME_NONNULL_BEGIN

// Strings.
@class NSData, NSError, NSURL, NSCharacterSet;

typedef NSUInteger NSStringEncoding;

NS_ENUM(NSStringEncoding){
    NSASCIIStringEncoding = 1,       NSUTF8StringEncoding = 4,
    NSISOLatin1StringEncoding = 5,   NSNonLossyASCIIStringEncoding = 7,
    NSUnicodeStringEncoding = 10,    NSWindowsCP1252StringEncoding = 12,
    NSMacOSRomanStringEncoding = 30, NSUTF16StringEncoding = NSUnicodeStringEncoding,
};

@interface NSString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSString (NSStringExtensionMethods)
- (NSComparisonResult)compare:(NSString*)string;
- (BOOL)isEqualToString:(NSString*)string;
- (BOOL)hasSuffix:(NSString*)text;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding allowLossyConversion:(BOOL)lossy;
- (nullable NSData*)dataUsingEncoding:(NSStringEncoding)encoding;

- (instancetype)initWithString:(NSString*)string;
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)length
                              encoding:(NSStringEncoding)encoding;
+ (instancetype)string;
+ (instancetype)stringWithFormat:(NSString*)format, ... NS_FORMAT_FUNCTION(1, 2);
@end

// Bytes.
@class NSString;

@interface NSData : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly) NSUInteger length;
// May be null where there are none.
@property(readonly) const void* bytes NS_RETURNS_INNER_POINTER;
+ (instancetype)data;
- (instancetype)initWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@end

// Spans of time, in seconds.
typedef double NSTimeInterval;

NS_ASSUME_NONNULL_END

// Points, sizes and rectangles.
typedef double CGFloat;
#define CGFLOAT_IS_DOUBLE 1

typedef struct CGPoint {
    CGFloat x;
    CGFloat y;
} CGPoint;

typedef struct CGSize {
    CGFloat width;
    CGFloat height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

typedef CGSize NSSize;
typedef CGRect NSRect;

static inline NSSize NSMakeSize(CGFloat width, CGFloat height) {
    NSSize size = {width, height};
    return size;
}

static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    NSRect rect = {{x, y}, {width, height}};
    return rect;
}

NS_ASSUME_NONNULL_BEGIN

// Numbers and other values as objects.
@class NSString;

@interface NSValue : NSObject <NSCopying, NSSecureCoding>
- (instancetype)initWithBytes:(const void*)value
                     objCType:(const char*)type NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@end

@interface NSValue (NSValueExtensionMethods)
+ (NSValue*)valueWithPointer:(nullable const void*)pointer;
@property(nullable, readonly) void* pointerValue;
@end

@interface NSNumber : NSValue
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
- (NSNumber*)initWithInt:(int)value NS_DESIGNATED_INITIALIZER;
- (NSNumber*)initWithBool:(BOOL)value NS_DESIGNATED_INITIALIZER;
- (NSComparisonResult)compare:(NSNumber*)other;
+ (NSNumber*)numberWithBool:(BOOL)value;
@end

NS_ASSUME_NONNULL_END
