// Named notifications within the process (not user notifications).
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "platform/Subscription.h"

namespace brisel::platform {

/// Synchronous: observers run on the posting thread, in registration order, before the call
/// returns. The object is passed on, never retained.
class NotificationCenter {
  public:
    using Observer = std::function<void(const void* object)>;

    virtual ~NotificationCenter() = default;

    [[nodiscard]] virtual Subscription addObserver(std::string_view name, Observer observer) = 0;
    virtual void postNotificationName(std::string_view name, const void* object) = 0;
};

}  // namespace brisel::platform
