// What operations leave behind.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "simulator/Words.h"
#include "tests/rules/Rule.h"

namespace brisel::tests {

/// The busy state begins with an operation, and ends with it or with a disk that goes; the two
/// failures that keep it on do so.
class BusyRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;
    void refuse() override { wanted_.reset(); }
    void rest(bool blocked) override;

  private:
    /// The next line, or the next rebuilt menu, that is to find the program busy or not.
    struct Wanted {
        bool busy;
        bool withMenu;
        std::string because;
    };

    void check(const std::string& line);
    [[nodiscard]] std::optional<Wanted> consequence(const std::string& line) const;
    [[nodiscard]] std::optional<Wanted> consequenceOfCommand(const std::string& command) const;
    [[nodiscard]] bool startsOperation(const simulator::Words& command) const;

    std::optional<Wanted> wanted_;
    bool blocked_ = false;
    bool failure_ = false;
};

/// The program makes and deletes folders in its mount folder alone, and deletes empty ones alone
/// unless it has just made them.
class FolderRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;

  private:
    void checkPlace(const std::string& folder) const;

    bool launchFailed_ = false;
};

/// The program itself never stores more automount entries than it may.
class AutomountRule final : public Rule {
  public:
    using Rule::Rule;
    void rest(bool blocked) override;

  private:
    std::size_t before_ = 0;
};

}  // namespace brisel::tests
