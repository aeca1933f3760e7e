// From which version of macOS something is there, and since when it is deprecated.
// SPDX-License-Identifier: MIT
#pragma once

#define BRISEL_SINCE_macos(version) macos, introduced = version
#define BRISEL_SPAN_macos(first, last) macos, introduced = first, deprecated = last
#define API_AVAILABLE(platform) __attribute__((availability(BRISEL_SINCE_##platform)))
#define API_DEPRECATED(text, platform) \
    __attribute__((availability(BRISEL_SPAN_##platform, message = text)))
#define API_DEPRECATED_WITH_REPLACEMENT(text, platform) \
    __attribute__((availability(BRISEL_SPAN_##platform, message = "use " text)))
#define API_TO_BE_DEPRECATED 100000
