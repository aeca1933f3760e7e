// What is on the screen fits what the program knows.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/rules/Rule.h"

namespace brisel::tests {

/// Each rebuilt menu says what the list of volumes says, and the fixed items stay.
class MenuRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;
    void rest(bool blocked) override;

  private:
    void checkStatusLine() const;
    void checkVolumes() const;
};

/// The icon tells what the menu was rebuilt from last, or of a failure that the next words explain.
class IconRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;

  private:
    void hearIcon(const std::string& name);
    [[nodiscard]] std::string colour() const;

    std::string shown_ = "grey";
    bool rebuilt_ = false;
    bool unexplained_ = false;
};

/// An alert waits for its button, and nothing goes on until it is pressed.
class AlertRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;
    void refuse() override;
    void rest(bool blocked) override;

  private:
    int up_ = 0;
    bool pressed_ = false;
};

}  // namespace brisel::tests
