// Modal alerts as questions on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alert.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

class Alert final : public platform::Alert {
  public:
    explicit Alert(Terminal& terminal) : terminal_(terminal) {}

    /// An empty line presses the first button. Returns -1 at end of input and on termination.
    int runModal(const AlertContent& content) override;

  private:
    Terminal& terminal_;
};

}  // namespace brisel::platform::terminal
