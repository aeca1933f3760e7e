// The simulated user: answers alerts and password prompts.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Alert.h"
#include "platform/Authorization.h"

namespace brisel::platform::simulated {

/// Called while the program is blocked. May change the simulated Mac before it answers, or throw
/// ProgramEnded.
class Person {
  public:
    virtual ~Person() = default;

    /// The pressed button's index, from 0. `alert.buttons` is never empty.
    virtual int answerAlert(const AlertContent& alert) = 0;
    /// The administrator prompt's status; 0 if the password is accepted.
    virtual OSStatus answerPasswordPrompt(const std::string& right) = 0;
};

}  // namespace brisel::platform::simulated
