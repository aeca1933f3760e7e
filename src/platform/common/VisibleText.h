// Outside text, such as a volume's label, made harmless to show.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::common {

/// The text with its control characters made visible: `^[` for escape, and so on.
std::string visible(std::string_view text);

}  // namespace brisel::platform::common
