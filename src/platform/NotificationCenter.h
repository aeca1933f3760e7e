// Named notifications between parts of the process (not those shown to the user).
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "platform/Subscription.h"

namespace brisel::platform {

/// Synchronous: observers run on the posting thread before the call returns, in the order in which
/// they came. The object is compared and handed on, never kept.
class NotificationCenter {
  public:
    /// The argument is the object the notification is about.
    using Observer = std::function<void(const void* object)>;

    virtual ~NotificationCenter() = default;

    [[nodiscard]] virtual Subscription addObserver(std::string_view name, Observer observer) = 0;
    virtual void postNotificationName(std::string_view name, const void* object) = 0;
};

}  // namespace brisel::platform
