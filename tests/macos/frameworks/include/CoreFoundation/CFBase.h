// Declares the basic types, macros and functions of Core Foundation.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <MacTypes.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include <CoreFoundation/CFAvailability.h>

#define CF_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define CF_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_RETURNS_NOT_RETAINED __attribute__((cf_returns_not_retained))

// The Objective-C class that an object may be cast to and from.
#define CF_BRIDGED_TYPE(type) __attribute__((objc_bridge(type)))
#define CF_BRIDGED_MUTABLE_TYPE(type) __attribute__((objc_bridge_mutable(type)))

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef unsigned long CFTypeID;
typedef unsigned long CFOptionFlags;
typedef unsigned long CFHashCode;
typedef long CFIndex;

typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;

typedef const CF_BRIDGED_TYPE(id) void* CFTypeRef;
typedef const struct CF_BRIDGED_TYPE(NSString) __CFString* CFStringRef;
typedef const struct CF_BRIDGED_TYPE(id) __CFAllocator* CFAllocatorRef;
typedef CFTypeRef CFPropertyListRef;

// Null, for the default allocator.
extern const CFAllocatorRef _Null_unspecified kCFAllocatorDefault;

CFTypeID CFGetTypeID(CFTypeRef object);
CFTypeRef CFRetain(CFTypeRef object);
// Crashes on null.
void CFRelease(CFTypeRef object);
CFIndex CFGetRetainCount(CFTypeRef object);
Boolean CFEqual(CFTypeRef one, CFTypeRef other);
CFHashCode CFHash(CFTypeRef object);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
