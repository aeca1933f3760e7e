// Owner of a registration, which it ends on destruction.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace brisel::platform {

/// Move-only. An empty subscription does nothing.
class Subscription {
  public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : end_(std::move(end)) {}
    Subscription(Subscription&& other) noexcept : end_(std::exchange(other.end_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            reset();
            end_ = std::exchange(other.end_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { reset(); }

    /// Ends the registration now. Idempotent.
    void reset() {
        if (const auto end = std::exchange(end_, nullptr)) end();
    }

  private:
    std::function<void()> end_;
};

}  // namespace brisel::platform
