// The token by which the desktop lets the next window take the focus.
// SPDX-License-Identifier: MIT
#include "platform/desktop/ActivationToken.h"

#include <cstdlib>
#include <utility>

namespace brisel::platform::desktop {

ActivationToken::ActivationToken() {
    for (const char* const name : LaunchVariables) {
        const char* const value = std::getenv(name);
        if (value != nullptr && token_.empty()) token_ = value;
    }
}

void ActivationToken::set(std::string token) {
    const std::lock_guard lock(mutex_);
    token_ = std::move(token);
}

std::string ActivationToken::take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(token_, {});
}

}  // namespace brisel::platform::desktop
