// Declares CFBoolean and CFNumber.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFBoolean* CFBooleanRef;
typedef const struct CF_BRIDGED_TYPE(NSNumber) __CFNumber* CFNumberRef;

extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

typedef CF_ENUM(CFIndex, CFNumberType) {
    kCFNumberSInt8Type = 1,
    kCFNumberSInt16Type = 2,
    kCFNumberSInt32Type = 3,
    kCFNumberSInt64Type = 4,
    kCFNumberFloat32Type = 5,
    kCFNumberFloat64Type = 6,
    kCFNumberIntType = 9,
    kCFNumberLongLongType = 11,
    kCFNumberDoubleType = 13,
};

CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef value);
CFTypeID CFNumberGetTypeID(void);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
