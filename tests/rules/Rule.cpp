// Everything that must hold of the program at all times.
// SPDX-License-Identifier: MIT
#include "tests/rules/Rule.h"

#include "tests/rules/ListRule.h"
#include "tests/rules/OperationRules.h"
#include "tests/rules/ScreenRules.h"

namespace brisel::tests {

std::optional<std::string> after(std::string_view prefix, const std::string& line) {
    if (!line.starts_with(prefix)) return std::nullopt;
    return line.substr(prefix.size());
}

Rules allRules(platform::simulated::Mac& mac, const simulator::Program& program,
               const Rule::Broken& broken) {
    return makeRules<ListRule, DeviceRule, MenuRule, IconRule, AlertRule, BusyRule, FolderRule,
                     AutomountRule>(mac, program, broken);
}

}  // namespace brisel::tests
