// Addresses.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSURL) __CFURL* CFURLRef;

typedef CF_ENUM(CFIndex, CFURLPathStyle) {
    kCFURLPOSIXPathStyle = 0,
    kCFURLWindowsPathStyle = 2,
};

CFTypeID CFURLGetTypeID(void);
CFURLRef _Nullable CFURLCreateFromFileSystemRepresentation(CFAllocatorRef _Nullable allocator,
                                                           const UInt8* path, CFIndex length,
                                                           Boolean isDirectory) CF_RETURNS_RETAINED;
CFURLRef _Nullable CFURLCreateWithFileSystemPath(CFAllocatorRef _Nullable allocator,
                                                 CFStringRef path, CFURLPathStyle style,
                                                 Boolean isDirectory) CF_RETURNS_RETAINED;
CFStringRef _Nullable CFURLCopyFileSystemPath(CFURLRef url,
                                              CFURLPathStyle style) CF_RETURNS_RETAINED;
// False where the path and its terminating zero do not fit in the buffer.
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex bufferSize);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
