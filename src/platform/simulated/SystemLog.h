// The system log of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/simulated/Transcript.h"
#include "platform/SystemLog.h"

namespace brisel::platform::simulated {

class SystemLog final : public platform::SystemLog {
  public:
    explicit SystemLog(Transcript& transcript) : transcript_(transcript) {}
    void write(const std::string& text) override { transcript_.record("log: %@", text); }

  private:
    Transcript& transcript_;
};

}  // namespace brisel::platform::simulated
