// Login items: helper applications inside an application.
// SPDX-License-Identifier: MIT
#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN
CF_ASSUME_NONNULL_BEGIN

// Whether the helper was found in the calling application and its state changed.
Boolean SMLoginItemSetEnabled(CFStringRef identifier, Boolean enabled)
    API_DEPRECATED("use SMAppService", macos(10.6, 13.0));

CF_ASSUME_NONNULL_END
CF_EXTERN_C_END
