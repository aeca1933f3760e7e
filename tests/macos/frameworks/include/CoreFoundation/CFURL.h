// Declares CFURL.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
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
// False if the path and its terminating null do not fit.
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex bufferSize);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
