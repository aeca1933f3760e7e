// Lookup of scenario commands.
// SPDX-License-Identifier: MIT
#include "simulator/Commands.h"

#include <algorithm>

namespace brisel::simulator {

const Command* findCommand(std::string_view name) {
    for (const auto& table :
         {programCommands(), diskCommands(), surroundingsCommands(), lookingCommands()}) {
        const auto found = std::find_if(table.begin(), table.end(), [name](const auto& command) {
            return command.name == name;
        });
        if (found != table.end()) return &*found;
    }
    return nullptr;
}

Complaint misused(std::string_view name) {
    return "usage: " + std::string(findCommand(name)->usage);
}

}  // namespace brisel::simulator
