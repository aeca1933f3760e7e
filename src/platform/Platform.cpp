// The installed platform.
// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <cstdlib>
#include <optional>

namespace brisel::platform {

namespace {

std::optional<Platform>& slot() {
    static std::optional<Platform> platform;
    return platform;
}

}  // namespace

void install(const Platform& platform) {
    slot().emplace(platform);
}

const Platform& installed() {
    if (!slot()) std::abort();
    return *slot();
}

}  // namespace brisel::platform
