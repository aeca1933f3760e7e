// The commands of the scenario language.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/simulated/Mac.h"
#include "simulator/Program.h"
#include "simulator/Words.h"

namespace brisel::simulator {

/// What commands act upon.
struct Stage {
    platform::simulated::Mac& mac;
    Program& program;
    /// The alert that is up, or null.
    const platform::AlertContent* alert = nullptr;
    bool passwordPromptIsUp = false;
    /// The button or status that `press` or `password` has given.
    std::optional<int> answer = std::nullopt;

    [[nodiscard]] bool blocked() const { return alert != nullptr || passwordPromptIsUp; }
};

/// What is wrong with a command; none when it was carried out.
using Complaint = std::optional<std::string>;

/// When a command may be given.
enum class When {
    BeforeStart,
    /// Once the program runs, while neither alert nor prompt is up.
    Running,
    AnyTime
};

struct Command {
    std::string_view name;
    When when;
    /// Its words, for `help` and for complaints.
    std::string_view usage;
    std::string_view purpose;
    Complaint (*carryOut)(Stage& stage, const Words& arguments);
};

/// Starting and using the program.
std::span<const Command> programCommands();
/// Disks.
std::span<const Command> diskCommands();
/// The rest of what surrounds the program.
std::span<const Command> surroundingsCommands();
/// Looking at the program's state.
std::span<const Command> lookingCommands();

/// The command of this name in any of the tables, or null.
const Command* findCommand(std::string_view name);

/// The complaint about a command whose words do not fit its usage.
Complaint misused(std::string_view name);

}  // namespace brisel::simulator
