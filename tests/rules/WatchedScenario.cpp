// A scenario checked by all rules.
// SPDX-License-Identifier: MIT
#include "tests/rules/WatchedScenario.h"

#include <utility>

namespace brisel::tests {

using simulator::Scenario;

namespace {

constexpr const char* Ready = "brisel> ";

}  // namespace

WatchedScenario::WatchedScenario(simulator::CommandSource& source, Listener listener)
    : source_(source),
      listener_(std::move(listener)),
      scenario_(
          *this, [this](const std::string& line) { hear(line); }, options()),
      rules_(allRules(scenario_.mac(), scenario_.program(), [this](const std::string& sentence) {
          broken_.push_back("line " + std::to_string(line_) + ": " + sentence);
      })) {}

Scenario::Options WatchedScenario::options() {
    Scenario::Options options;
    options.onBadCommand = Scenario::OnBadCommand::GoOn;
    options.badCommandHandler = [this](const Scenario::BadCommand&) { refuse(); };
    return options;
}

std::optional<std::string> WatchedScenario::nextLine(const std::string& prompt) {
    for (const auto& rule : rules_)
        rule->rest(prompt != Ready);
    if (!broken_.empty()) return std::nullopt;
    ++line_;
    return source_.nextLine(prompt);
}

void WatchedScenario::hear(const std::string& line) {
    listener_.line(line);
    for (const auto& rule : rules_)
        rule->hear(line);
}

void WatchedScenario::refuse() {
    listener_.badCommand();
    for (const auto& rule : rules_)
        rule->refuse();
}

}  // namespace brisel::tests
