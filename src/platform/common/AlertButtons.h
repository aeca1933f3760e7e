// The buttons of an alert where the platform has no default button of its own.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/Alert.h"

namespace brisel::platform::common {

/// The titles as asked for, or a single "OK".
inline std::vector<std::string> buttonsOf(const AlertContent& content) {
    return content.buttons.empty() ? std::vector<std::string>{"OK"} : content.buttons;
}

}  // namespace brisel::platform::common
