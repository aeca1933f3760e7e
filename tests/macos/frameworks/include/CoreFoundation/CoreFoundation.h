// Core Foundation, as much of it as the application uses.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CFBase.h>

// Arrays.

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

// Dictionaries.
typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;

// Null for a key that is not there; else the dictionary's own reference.
const void* _Nullable CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);

// Truth values and numbers.
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean* CFBooleanRef;

CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef value);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END

// Strings.

// A constant string of the program itself.
#ifdef __OBJC__
#define CFSTR(text) ((CFStringRef) @text)
#else
#define CFSTR(text) ((CFStringRef)__builtin___CFStringMakeConstantString(text))
#endif

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

CFTypeID CFStringGetTypeID(void);

// Run loops and their modes.
typedef CFStringRef CFRunLoopMode;
typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFRunLoop* CFRunLoopRef;

extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFRunLoopMode kCFRunLoopCommonModes;

CFRunLoopRef _Null_unspecified CFRunLoopGetCurrent(void);
CFRunLoopRef _Null_unspecified CFRunLoopGetMain(void);

// Addresses.
typedef const struct CF_BRIDGED_TYPE(NSURL) __CFURL* CFURLRef;

CFTypeID CFURLGetTypeID(void);
// False where the path and its terminating zero do not fit in the buffer.
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex bufferSize);

// Universally unique identifiers; no Objective-C class is the same.
typedef const struct CF_BRIDGED_TYPE(id) __CFUUID* CFUUIDRef;

CFTypeID CFUUIDGetTypeID(void);
// Crashes on a null identifier.
CFStringRef _Null_unspecified CFUUIDCreateString(CFAllocatorRef _Nullable allocator,
                                                 CFUUIDRef uuid) CF_RETURNS_RETAINED;

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
