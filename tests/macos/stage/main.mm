// brisel-macos-stage: the Mac application on stand-in frameworks, driven by a scenario.
// SPDX-License-Identifier: MIT
#include <memory>

#include "simulator/CommandLine.h"
#include "tests/macos/frameworks/World.h"
#include "tests/macos/stage/StagedProgram.h"

namespace {

namespace simulator = brisel::simulator;
using brisel::tests::macos::StagedProgram;

}  // namespace

int main(int argumentCount, char** arguments) {
    StagedProgram* program = nullptr;
    const simulator::CommandLine commandLine{
        .name = "brisel-macos-stage",
        .purpose = "Runs the Mac application on stand-in frameworks, one command a line, from FILE "
                   "or standard input.",
        .makeProgram =
            [&program](brisel::platform::simulated::Mac& mac) {
                brisel::tests::macos::setWorld(mac);
                auto made = std::make_unique<StagedProgram>(mac);
                program = made.get();
                return made;
            },
        .scenarioMade =
            [&program](simulator::Scenario& scenario) { program->setScenario(scenario); }};
    // Comes back only from a scenario that has not started the program.
    return run(commandLine, argumentCount, arguments);
}
