// Making the k-th call that can fail do so.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Error.h"

namespace brisel::platform::simulated {

class Faults {
  public:
    /// Lets the call of this number fail, counted from 1 over all services; 0 for none.
    void failCall(std::size_t number) { failing_ = number; }

    /// To be asked by every service at the start of a call that can fail: whether this one does.
    [[nodiscard]] bool strikes(std::string_view call);

    /// How many calls could have failed so far.
    [[nodiscard]] std::size_t calls() const { return calls_; }
    /// The name of the call that failed; empty as long as none has.
    [[nodiscard]] const std::string& struck() const { return struck_; }

    /// What a struck call says.
    [[nodiscard]] static Error error();

  private:
    std::size_t failing_ = 0;
    std::size_t calls_ = 0;
    std::string struck_;
};

}  // namespace brisel::platform::simulated
