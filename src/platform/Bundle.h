// The application's resources: localised texts and images.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform {

/// Safe from any thread.
class Bundle {
  public:
    virtual ~Bundle() = default;

    /// The text of this English key in the default table, or the key itself if it is missing.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;
    /// Whether an image of this name, without file extension, exists.
    [[nodiscard]] virtual bool hasImage(const std::string& name) const = 0;
};

}  // namespace brisel::platform
