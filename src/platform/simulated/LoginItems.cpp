// The login items of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/LoginItems.h"

namespace brisel::platform::simulated {

bool LoginItems::setEnabled(const std::string& identifier, bool enabled) {
    transcript_.record("login-item: %@ %@", identifier, std::string(enabled ? "on" : "off"));
    return !faults_.strikes("loginItem") && answer_ == Answer::Accept;
}

}  // namespace brisel::platform::simulated
