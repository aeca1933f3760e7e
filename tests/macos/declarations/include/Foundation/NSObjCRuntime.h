// Declares the basic types and macros of Foundation.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <objc/NSObject.h>
#include <os/availability.h>

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

extern NSString* NSStringFromSelector(SEL selector);
extern SEL NSSelectorFromString(NSString* name);
extern NSString* NSStringFromClass(Class cls);
extern Class _Nullable NSClassFromString(NSString* name);
extern void NSLog(NSString* format, ...) NS_FORMAT_FUNCTION(1, 2);

NS_ASSUME_NONNULL_END
CF_EXTERN_C_END
