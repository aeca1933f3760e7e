// The file browser of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/simulated/Transcript.h"
#include "platform/Workspace.h"

namespace brisel::platform::simulated {

class Workspace final : public platform::Workspace {
  public:
    explicit Workspace(Transcript& transcript) : transcript_(transcript) {}
    void openURL(const std::optional<FileURL>& url) override {
        transcript_.record("open: %@", url);
    }

  private:
    Transcript& transcript_;
};

}  // namespace brisel::platform::simulated
