// Declares CFString.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

// A constant string.
#ifdef __OBJC__
#define CFSTR(text) ((CFStringRef) @text)
#else
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString(text))
#endif

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef UInt32 CFStringEncoding;

typedef CF_ENUM(CFStringEncoding, CFStringBuiltInEncodings) {
    kCFStringEncodingMacRoman = 0,
    kCFStringEncodingISOLatin1 = 0x0201,
    kCFStringEncodingASCII = 0x0600,
    kCFStringEncodingUnicode = 0x0100,
    kCFStringEncodingUTF8 = 0x08000100,
};

CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef string);
// In bytes, without the terminating null.
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
// False if the string and its terminating null do not fit.
Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);
const char* _Nullable CFStringGetCStringPtr(CFStringRef string, CFStringEncoding encoding);
CFStringRef _Nullable CFStringCreateWithCString(CFAllocatorRef _Nullable allocator,
                                                const char* text,
                                                CFStringEncoding encoding) CF_RETURNS_RETAINED;
CFStringRef _Nullable CFStringCreateWithBytes(CFAllocatorRef _Nullable allocator,
                                              const UInt8* bytes, CFIndex byteCount,
                                              CFStringEncoding encoding,
                                              Boolean startsWithMark) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
