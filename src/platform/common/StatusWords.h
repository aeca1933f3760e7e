// The state that a status image stands for, in words.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brisel::platform::common {

/// The localisation key of the words for the image of this name, such as "a volume is writable"
/// for a blue one: colour alone tells nothing to some people. Empty for no status image.
std::string_view statusWords(std::string_view imageName);

}  // namespace brisel::platform::common
