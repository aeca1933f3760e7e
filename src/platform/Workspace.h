// The file browser.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/FileURL.h"

namespace brisel::platform {

/// Main thread only.
class Workspace {
  public:
    virtual ~Workspace() = default;

    /// Shows the folder in the file browser; does nothing if `url` is absent. Reports no error.
    virtual void openURL(const std::optional<FileURL>& url) = 0;
};

}  // namespace brisel::platform
