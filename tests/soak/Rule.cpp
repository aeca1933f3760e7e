// Everything that must hold of the program at all times.
// SPDX-License-Identifier: MIT
#include "tests/soak/Rule.h"

#include "tests/soak/ListRule.h"
#include "tests/soak/OperationRules.h"
#include "tests/soak/ScreenRules.h"

namespace brisel::tests {

namespace {

template <typename... Each>
Rules make(platform::simulated::Mac& mac, const simulator::Program& program,
           const Rule::Broken& broken) {
    Rules rules;
    (rules.push_back(std::make_unique<Each>(mac, program, broken)), ...);
    return rules;
}

}  // namespace

std::optional<std::string> after(std::string_view prefix, const std::string& line) {
    if (!line.starts_with(prefix)) return std::nullopt;
    return line.substr(prefix.size());
}

Rules allRules(platform::simulated::Mac& mac, const simulator::Program& program,
               const Rule::Broken& broken) {
    return make<ListRule, MenuRule, IconRule, AlertRule, BusyRule, FolderRule, AutomountRule>(
        mac, program, broken);
}

}  // namespace brisel::tests
