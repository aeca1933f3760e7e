// Makes control characters in untrusted text, such as a volume's label, visible.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::common {

/// Replaces ASCII control characters with caret notation (`^[` for escape), and U+0080 to U+009F
/// and bidirectional controls with `?`.
std::string visible(std::string_view text);

}  // namespace brisel::platform::common
