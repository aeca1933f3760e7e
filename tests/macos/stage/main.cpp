// brisel-macos-stage: the Mac application on stand-in frameworks, driven by a scenario.
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
    // Comes back only from a scenario that has not started the program.
    return run(commandLine, argumentCount, arguments);
}
