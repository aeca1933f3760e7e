// The installed platform.
// SPDX-License-Identifier: MIT
#include "platform/Platform.h"

#include <cstdlib>

namespace brisel::platform {

namespace {

const Platform*& slot() {
    static const Platform* platform = nullptr;
    return platform;
}

}  // namespace

void install(const Platform& platform) {
    slot() = &platform;
}

const Platform& installed() {
    if (slot() == nullptr) std::abort();
    return *slot();
}

}  // namespace brisel::platform
