// The scripts of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ScriptRunner.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class ScriptRunner final : public platform::ScriptRunner {
  public:
    using ErrorDictionary = std::vector<std::pair<std::string, std::string>>;

    ScriptRunner(Transcript& transcript, Faults& faults)
        : transcript_(transcript), faults_(faults) {}
    [[nodiscard]] ScriptResult execute(const std::string& source) override;

    void failNext(ErrorDictionary error) { nextError_ = std::move(error); }

  private:
    Transcript& transcript_;
    Faults& faults_;
    std::optional<ErrorDictionary> nextError_;
};

}  // namespace brisel::platform::simulated
