// The application on a Linux desktop.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/common/Application.h"
#include "platform/linux/OpenWindow.h"

namespace brisel::platform::linux {

class Application final : public common::Application {
  public:
    void orderFrontStandardAboutPanel() override { aboutPanel_.show({"about"}, {}, {}); }

  private:
    OpenWindow aboutPanel_;
};

}  // namespace brisel::platform::linux
