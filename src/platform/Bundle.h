// The application's own resources: texts in the user's language, and images.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform {

/// Safe from any thread.
class Bundle {
  public:
    virtual ~Bundle() = default;

    /// The text for this English key in the default table, or the key itself.
    [[nodiscard]] virtual std::string localizedString(std::string_view key) const = 0;
    /// Whether there is an image of this name, which has no ending: what a status item shows.
    [[nodiscard]] virtual bool hasImage(const std::string& name) const = 0;
};

}  // namespace brisel::platform
