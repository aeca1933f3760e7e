// Prints a folder's path in place of opening a file manager.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/terminal/Terminal.h"
#include "platform/Workspace.h"

namespace brisel::platform::terminal {

class Workspace final : public platform::Workspace {
  public:
    explicit Workspace(Terminal& terminal) : terminal_(terminal) {}

    void openURL(const std::optional<FileURL>& url) override {
        if (url) terminal_.print("The volume is at " + url->path());
    }

  private:
    Terminal& terminal_;
};

}  // namespace brisel::platform::terminal
