// Declares CFRunLoop.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFString.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef double CFTimeInterval;
typedef CFStringRef CFRunLoopMode;
typedef struct CF_BRIDGED_MUTABLE_TYPE(id) __CFRunLoop* CFRunLoopRef;

typedef CF_ENUM(SInt32, CFRunLoopRunResult) {
    kCFRunLoopRunFinished = 1,
    kCFRunLoopRunStopped = 2,
    kCFRunLoopRunTimedOut = 3,
    kCFRunLoopRunHandledSource = 4,
};

extern const CFRunLoopMode kCFRunLoopDefaultMode;
extern const CFRunLoopMode kCFRunLoopCommonModes;

CFRunLoopRef _Null_unspecified CFRunLoopGetCurrent(void);
CFRunLoopRef _Null_unspecified CFRunLoopGetMain(void);
void CFRunLoopRun(void);
CFRunLoopRunResult CFRunLoopRunInMode(CFRunLoopMode _Null_unspecified mode, CFTimeInterval seconds,
                                      Boolean returnAfterSourceHandled);
void CFRunLoopStop(CFRunLoopRef _Null_unspecified loop);
void CFRunLoopWakeUp(CFRunLoopRef _Null_unspecified loop);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
