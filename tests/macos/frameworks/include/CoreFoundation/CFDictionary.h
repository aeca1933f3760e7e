// Dictionaries.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac.
#pragma once

#include <CoreFoundation/CFBase.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

typedef const struct CF_BRIDGED_TYPE(NSDictionary) __CFDictionary* CFDictionaryRef;

CFTypeID CFDictionaryGetTypeID(void);
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary);
Boolean CFDictionaryContainsKey(CFDictionaryRef dictionary, const void* key);
// Null for a key that is not there; else the dictionary's own reference.
const void* _Nullable CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
