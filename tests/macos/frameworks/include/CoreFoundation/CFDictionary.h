// Declares CFDictionary.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;

CFTypeID CFDictionaryGetTypeID(void);
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary);
Boolean CFDictionaryContainsKey(CFDictionaryRef dictionary, const void* key);
// Null if `key` is absent; the dictionary owns the result.
const void* _Nullable CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
