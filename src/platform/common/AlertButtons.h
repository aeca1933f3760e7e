// Alert buttons for platforms without a default button.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Alert.h"

namespace brisel::platform::common {

/// The requested titles, or a single "OK".
inline std::vector<std::string> buttonsOf(const AlertContent& content) {
    return content.buttons.empty() ? std::vector<std::string>{"OK"} : content.buttons;
}

}  // namespace brisel::platform::common
