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

    /// Shows the folder in the file browser; none opens nothing. Whether it worked is the
    /// platform's matter.
    virtual void openURL(const std::optional<FileURL>& url) = 0;
};

}  // namespace brisel::platform
