// A session with the service that watches disks.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __DASession* DASessionRef;

CFTypeID DASessionGetTypeID(void);
DASessionRef _Nullable DASessionCreate(CFAllocatorRef _Nullable allocator) CF_RETURNS_RETAINED;
void DASessionScheduleWithRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                  CFStringRef runLoopMode);
// A session must not be released while it is scheduled.
void DASessionUnscheduleFromRunLoop(DASessionRef session, CFRunLoopRef runLoop,
                                    CFStringRef runLoopMode);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
