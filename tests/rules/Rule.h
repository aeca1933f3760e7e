// One thing that must hold of the program at all times.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/simulated/Mac.h"
#include "simulator/Program.h"

namespace brisel::tests {

/// Hears of all that happens on a simulated Mac, and looks at the program on it meanwhile.
class Rule {
  public:
    /// Is told in a sentence what does not hold.
    using Broken = std::function<void(const std::string& sentence)>;

    /// Both must outlive the rule.
    Rule(platform::simulated::Mac& mac, const simulator::Program& program, Broken broken)
        : mac_(mac), program_(program), broken_(std::move(broken)) {}
    Rule(const Rule&) = delete;
    Rule& operator=(const Rule&) = delete;
    virtual ~Rule() = default;

    /// A line of the transcript, commands among them, at the moment it is written.
    virtual void hear(const std::string& /*line*/) {}
    /// The command heard last was a bad one.
    virtual void refuse() {}
    /// The next command is about to be read; `blocked` while an alert or prompt is up.
    virtual void rest(bool /*blocked*/) {}

  protected:
    [[nodiscard]] platform::simulated::Mac& mac() const { return mac_; }
    /// Null before the program was started.
    [[nodiscard]] const NTFSVolumeManager* manager() const { return program_.manager(); }
    [[nodiscard]] bool inProgress() const {
        return manager() != nullptr && manager()->inProgress();
    }
    void require(bool holds, const std::string& otherwise) const {
        if (!holds) broken_(otherwise);
    }

  private:
    platform::simulated::Mac& mac_;
    const simulator::Program& program_;
    Broken broken_;
};

/// What follows the prefix in the line; none where it starts otherwise.
std::optional<std::string> after(std::string_view prefix, const std::string& line);

using Rules = std::vector<std::unique_ptr<Rule>>;

/// A rule of each of these classes.
template <typename... Each>
Rules makeRules(platform::simulated::Mac& mac, const simulator::Program& program,
                const Rule::Broken& broken) {
    Rules rules;
    (rules.push_back(std::make_unique<Each>(mac, program, broken)), ...);
    return rules;
}

/// Every rule there is.
Rules allRules(platform::simulated::Mac& mac, const simulator::Program& program,
               const Rule::Broken& broken);

}  // namespace brisel::tests
