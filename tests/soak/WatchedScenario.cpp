// A scenario under the eyes of all rules.
// SPDX-License-Identifier: MIT
#include "tests/soak/WatchedScenario.h"

#include "tests/support/FirstButton.h"

namespace brisel::tests {

using simulator::Scenario;

namespace {

constexpr const char* Ready = "brisel> ";

}  // namespace

WatchedScenario::WatchedScenario(std::istream& commands, unsigned faultSeed)
    : commands_(commands),
      faulty_(faultSeed != 0),
      chance_(faultSeed),
      scenario_(
          *this, [this](const std::string& line) { hear(line); }, manner()),
      rules_(allRules(scenario_.mac(), scenario_.program(), [this](const std::string& sentence) {
          broken_.push_back("line " + std::to_string(line_) + ": " + sentence);
      })) {}

Scenario::Manner WatchedScenario::manner() {
    Scenario::Manner manner;
    if (faulty_) manner.onBadCommand = Scenario::OnBadCommand::GoOn;
    manner.badCommandHandler = [this](const Scenario::BadCommand& bad) { refuse(bad); };
    return manner;
}

std::optional<std::string> WatchedScenario::nextLine(const std::string& prompt) {
    constexpr int MostIgnored = 8;
    for (const auto& rule : rules_)
        rule->rest(prompt != Ready);
    if (!broken_.empty()) return std::nullopt;
    if (faulty_) arrangeNextFault();
    ignored_ = prompt == Ready ? 0 : ignored_ + 1;
    if (faulty_ && ignored_ > MostIgnored) {
        return prompt.starts_with("alert") ? pressFirstButton(buttons_) : "password ok";
    }
    ++line_;
    std::string line;
    if (!std::getline(commands_, line)) return std::nullopt;
    return line;
}

void WatchedScenario::hear(const std::string& line) {
    if (line.starts_with(ButtonsEvent)) buttons_ = line;
    for (const auto& rule : rules_)
        rule->hear(line);
}

void WatchedScenario::refuse(const Scenario::BadCommand& bad) {
    complaint_ = "line " + std::to_string(bad.line) + ": " + bad.complaint;
    for (const auto& rule : rules_)
        rule->refuse();
}

void WatchedScenario::arrangeNextFault() {
    constexpr std::size_t Rarest = 60;
    auto& faults = scenario_.mac().faults;
    // The session is opened first, and without one there is nothing to see.
    if (faults.calls() == 0 || faults.calls() < nextFault_) return;
    nextFault_ = faults.calls() + 1 + chance_() % Rarest;
    faults.failCall(nextFault_);
}

}  // namespace brisel::tests
