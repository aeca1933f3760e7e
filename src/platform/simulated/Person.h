// Whoever sits before the simulated Mac and answers what blocks the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Alert.h"
#include "platform/Authorization.h"

namespace brisel::platform::simulated {

/// Both calls come while the program is blocked; the surroundings may be changed before answering.
/// Either may throw ProgramEnded instead.
class Person {
  public:
    virtual ~Person() = default;

    /// The index of the button pressed, from 0; `buttons` are never empty here.
    virtual int answerAlert(const AlertContent& alert) = 0;
    /// The status of the administrator prompt: 0 for the right password.
    virtual OSStatus answerPasswordPrompt(const std::string& right) = 0;
};

}  // namespace brisel::platform::simulated
