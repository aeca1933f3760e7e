// Declares SMLoginItemSetEnabled.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

// True if the calling application contains the helper and its state changed.
Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled)
    API_DEPRECATED("use SMAppService", macos(10.6, 13.0));

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
