// Finder, by NSWorkspace.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Workspace.h"

namespace brisel::platform::macos {

class Workspace final : public platform::Workspace {
  public:
    void openURL(const std::optional<FileURL>& url) override;
};

}  // namespace brisel::platform::macos
