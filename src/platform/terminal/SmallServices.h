// What is left of a desktop when there is only a terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/common/Application.h"
#include "platform/LoginItems.h"
#include "platform/terminal/Terminal.h"
#include "platform/Workspace.h"

namespace brisel::platform::terminal {

class Workspace final : public platform::Workspace {
  public:
    explicit Workspace(Terminal& terminal) : terminal_(terminal) {}

    /// Says where the folder is.
    void openURL(const std::optional<FileURL>& url) override {
        if (url) terminal_.print("The volume is at " + url->path());
    }

  private:
    Terminal& terminal_;
};

class LoginItems final : public platform::LoginItems {
  public:
    /// A program for the terminal has nothing to start at login.
    [[nodiscard]] bool setEnabled(const std::string& /*identifier*/, bool /*enabled*/) override {
        return false;
    }
};

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
