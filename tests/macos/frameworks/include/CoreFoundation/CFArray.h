// Declares CFArray.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSArray) __CFArray* CFArrayRef;

CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef array);
const void* _Null_unspecified CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
