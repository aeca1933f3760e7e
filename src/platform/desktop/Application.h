// The application on a Linux desktop.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/common/Application.h"
#include "platform/desktop/ModelessWindow.h"

namespace brisel::platform::desktop {

class Application final : public common::Application {
  public:
    Application(platform::SystemLog& log, DialogProgram dialog)
        : aboutPanel_(log, std::move(dialog)) {}

    void orderFrontStandardAboutPanel() override { aboutPanel_.show({"about"}, {}, {}); }

  private:
    ModelessWindow aboutPanel_;
};

}  // namespace brisel::platform::desktop
