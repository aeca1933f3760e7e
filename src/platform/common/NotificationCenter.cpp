// Named notifications within the process.
// SPDX-License-Identifier: MIT
#include "platform/common/NotificationCenter.h"

#include <utility>

namespace brisel::platform::common {

Subscription NotificationCenter::addObserver(std::string_view name, Observer observer) {
    return signals_[std::string(name)].subscribe(std::move(observer));
}

void NotificationCenter::postNotificationName(std::string_view name, const void* object) {
    const auto found = signals_.find(name);
    if (found != signals_.end()) found->second(object);
}

}  // namespace brisel::platform::common
