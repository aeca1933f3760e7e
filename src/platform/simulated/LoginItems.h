// The login items of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class LoginItems final : public platform::LoginItems {
  public:
    LoginItems(Transcript& transcript, Faults& faults) : transcript_(transcript), faults_(faults) {}
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;

    enum class Answer { Accept, Refuse };
    void setAnswer(Answer answer) { answer_ = answer; }

  private:
    Transcript& transcript_;
    Faults& faults_;
    Answer answer_ = Answer::Accept;
};

}  // namespace brisel::platform::simulated
