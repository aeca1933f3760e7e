// Fault injection: makes the k-th fallible call fail.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Faults.h"

namespace brisel::platform::simulated {

bool Faults::strikes(std::string_view call) {
    ++calls_;
    if (calls_ != failing_) return false;
    struck_ = call;
    return true;
}

Error Faults::error() {
    return {.localizedDescription = "The call failed.", .localizedFailureReason = std::nullopt};
}

}  // namespace brisel::platform::simulated
