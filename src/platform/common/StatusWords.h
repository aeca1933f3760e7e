// Textual descriptions of the status images.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace brisel::platform::common {

/// Localisation key of an image's description, such as "a volume is writable" for the blue images,
/// for users who cannot tell the colours apart. Empty if `imageName` is not a status image.
std::string_view statusWords(std::string_view imageName);

}  // namespace brisel::platform::common
