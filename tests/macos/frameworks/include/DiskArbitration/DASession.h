// Declares DASession.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __DASession* DASessionRef;

CFTypeID DASessionGetTypeID(void);
DASessionRef _Nullable DASessionCreate(CFAllocatorRef _Nullable allocator) CF_RETURNS_RETAINED;
void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                  CFStringRef runLoopMode);
// Unschedule a session before its release.
void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                    CFStringRef runLoopMode);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
