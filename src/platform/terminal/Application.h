// The terminal program's application object.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/common/Application.h"
#include "platform/terminal/Terminal.h"

namespace brisel::platform::terminal {

class Application final : public common::Application {
  public:
    Application(Terminal& terminal, std::string about)
        : terminal_(terminal), about_(std::move(about)) {}

    void orderFrontStandardAboutPanel() override { terminal_.print(about_); }

  private:
    Terminal& terminal_;
    std::string about_;
};

}  // namespace brisel::platform::terminal
