// A program that runs scenarios, as its command line tells it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "simulator/Scenario.h"

namespace brisel::simulator {

struct CommandLine {
    /// The program's name, for its messages.
    std::string name;
    /// One sentence for `--help`.
    std::string purpose;
    /// Builds the program under test; straight on the simulated Mac where nothing is given.
    Scenario::ProgramMaker makeProgram;
};

/// Runs the scenario in the file that the arguments name, or from standard input, which may be a
/// terminal. Returns the exit status: 0 at the end, 2 for bad use and where a bad command stopped
/// it.
int run(const CommandLine& commandLine, int argumentCount, char** arguments);

}  // namespace brisel::simulator
