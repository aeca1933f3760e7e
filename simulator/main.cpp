// brisel-simulator: the program on a simulated Mac, driven by commands.
// SPDX-License-Identifier: MIT
#include "simulator/CommandLine.h"

int main(int argumentCount, char** arguments) {
    const brisel::simulator::CommandLine commandLine{
        .name = "brisel-simulator",
        .purpose =
            "Runs Brisel on a simulated Mac, one command a line, from FILE or standard input.",
        .makeProgram = nullptr};
    return run(commandLine, argumentCount, arguments);
}
