// A list of callbacks, each registered until its Subscription ends.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Subscription.h"

namespace brisel::platform::common {

/// Not thread-safe. Calls slots in subscription order; a slot added during a call is first called
/// in the next one. A subscription may outlive the signal; a slot may end any subscription.
template <typename... Arguments>
class Signal {
  public:
    using Slot = std::function<void(Arguments...)>;

    [[nodiscard]] Subscription subscribe(Slot slot) {
        const auto entry = std::make_shared<Slot>(std::move(slot));
        slots_->push_back(entry);
        return Subscription([slots = std::weak_ptr(slots_), ended = std::weak_ptr(entry)] {
            const auto gone = ended.lock();
            if (gone) *gone = nullptr;
            if (const auto list = slots.lock()) std::erase(*list, gone);
        });
    }

    [[nodiscard]] bool empty() const { return slots_->empty(); }

    void operator()(Arguments... arguments) const {
        const auto snapshot = *slots_;
        for (const auto& entry : snapshot) {
            const Slot slot = *entry;
            if (slot) slot(arguments...);
        }
    }

  private:
    using Slots = std::vector<std::shared_ptr<Slot>>;
    std::shared_ptr<Slots> slots_ = std::make_shared<Slots>();
};

}  // namespace brisel::platform::common
