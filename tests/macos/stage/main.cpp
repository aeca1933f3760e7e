// brisel-macos-stage: runs the macOS application on stand-in frameworks with a scenario.
// SPDX-License-Identifier: MIT
#include <memory>

#include "simulator/CommandLine.h"
#include "tests/macos/stage/StagedProgram.h"

int main(int argumentCount, char** arguments) {
    const brisel::simulator::CommandLine commandLine{
        .name = "brisel-macos-stage",
        .purpose =
            "Runs the Mac application on stand-in frameworks, one command a line, from FILE "
            "or standard input.",
        .makeProgram = [](brisel::simulator::Scenario& scenario) {
            return std::make_unique<brisel::tests::macos::StagedProgram>(scenario);
        }};
    // Returns only if the scenario has not started the program.
    return run(commandLine, argumentCount, arguments);
}
