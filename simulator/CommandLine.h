// The command line of programs that run scenarios.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "simulator/Scenario.h"

namespace brisel::simulator {

struct CommandLine {
    /// For messages.
    std::string name;
    /// One sentence for `--help`.
    std::string purpose;
    /// Builds the program under test. If empty, the core runs directly on the simulated Mac.
    Scenario::ProgramMaker makeProgram;
};

/// Runs the scenario in the given file or, without one, from standard input, which may be a
/// terminal. Returns the exit status: 0 on success, 2 on a usage error or if a bad command stopped
/// the scenario.
int run(const CommandLine& commandLine, int argumentCount, char** arguments);

}  // namespace brisel::simulator
