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

/// The state that commands act on.
struct Stage {
    platform::simulated::Mac& mac;
    Program& program;
    /// The alert on screen, or null.
    const platform::AlertContent* alert = nullptr;
    bool passwordPromptIsUp = false;
    /// The button index from `press` or the status from `password`.
    std::optional<int> answer = std::nullopt;

    [[nodiscard]] bool blocked() const { return alert != nullptr || passwordPromptIsUp; }
};

/// A command's error message; absent on success.
using Complaint = std::optional<std::string>;

/// When a command is allowed.
enum class When {
    BeforeStart,
    /// After the start, while no alert or prompt is up.
    Running,
    AnyTime
};

struct Command {
    std::string_view name;
    When when;
    /// Its syntax, for `help` and error messages.
    std::string_view usage;
    std::string_view purpose;
    Complaint (*carryOut)(Stage& stage, const Words& arguments);
};

/// Commands that configure, start and use the program.
std::span<const Command> programCommands();
/// Commands that attach, change and detach disks.
std::span<const Command> diskCommands();
/// Commands that control the other simulated services.
std::span<const Command> surroundingsCommands();
/// Commands that print the program's state.
std::span<const Command> lookingCommands();

/// The command with this name, or null.
const Command* findCommand(std::string_view name);

/// The usage message of an existing command.
Complaint misused(std::string_view name);

}  // namespace brisel::simulator
