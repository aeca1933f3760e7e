// Universally unique identifiers; no Objective-C class is the same.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(id) __CFUUID* CFUUIDRef;

CFTypeID CFUUIDGetTypeID(void);
CFUUIDRef _Nullable CFUUIDCreateFromString(CFAllocatorRef _Nullable allocator,
                                           CFStringRef text) CF_RETURNS_RETAINED;
// Crashes on a null identifier.
CFStringRef _Null_unspecified CFUUIDCreateString(CFAllocatorRef _Nullable allocator,
                                                 CFUUIDRef uuid) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
