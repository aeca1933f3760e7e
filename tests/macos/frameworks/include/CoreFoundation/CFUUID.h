// Declares CFUUID, which has no Objective-C counterpart.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(id) __CFUUID* CFUUIDRef;

CFTypeID CFUUIDGetTypeID(void);
CFUUIDRef _Nullable CFUUIDCreateFromString(CFAllocatorRef _Nullable allocator,
                                           CFStringRef text) CF_RETURNS_RETAINED;
// Crashes if `uuid` is null.
CFStringRef _Null_unspecified CFUUIDCreateString(CFAllocatorRef _Nullable allocator,
                                                 CFUUIDRef uuid) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
