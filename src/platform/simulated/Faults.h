// Fault injection: makes the k-th fallible call fail.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Error.h"

namespace brisel::platform::simulated {

class Faults {
  public:
    /// Makes the call of this number fail, counted from 1 across all services; 0 disables it.
    void failCall(std::size_t number) { failing_ = number; }

    /// Counts a fallible call; true if it is to fail. Services call it first.
    [[nodiscard]] bool strikes(std::string_view call);

    /// Number of fallible calls so far.
    [[nodiscard]] std::size_t calls() const { return calls_; }
    /// Name of the failed call; empty if none has failed.
    [[nodiscard]] const std::string& struck() const { return struck_; }

    /// The error of a failed call.
    [[nodiscard]] static Error error();

  private:
    std::size_t failing_ = 0;
    std::size_t calls_ = 0;
    std::string struck_;
};

}  // namespace brisel::platform::simulated
