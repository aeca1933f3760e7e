// brisel-simulator: the program on a simulated Mac, driven by commands.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

#include "simulator/Scenario.h"

namespace {

using namespace brisel::simulator;

constexpr int BadUse = 2;
constexpr std::string_view Usage =
    "usage: brisel-simulator [FILE]\n"
    "Runs Brisel on a simulated Mac, one command a line, from FILE or standard input.\n";

void printLine(const std::string& line) {
    std::cout << line << '\n';
}

int runScript(std::istream& stream) {
    StreamSource source(stream);
    Scenario::Manner manner;
    manner.badCommandHandler = [](const Scenario::BadCommand& bad) {
        std::cout.flush();
        std::cerr << "line " << bad.line << ": " << bad.complaint << '\n';
    };
    // Whoever writes commands into a pipe may want to read what came of each before the next.
    manner.afterCommand = [] { std::cout.flush(); };
    return Scenario(source, printLine, manner).run() ? 0 : BadUse;
}

int runInTerminal() {
    std::cout << "Brisel on a simulated Mac. Type \"start\", then for example\n"
                 "  attach disk4s1 kind=ntfs name=Data path=/Volumes/Data\n"
                 "\"help\" lists all commands, \"quit\" ends.\n"
              << std::flush;
    TerminalSource source;
    Scenario::Manner manner;
    manner.onBadCommand = Scenario::OnBadCommand::GoOn;
    manner.echo = Scenario::Echo::Nothing;
    // What the program did must be seen before the next prompt, which another library writes.
    const auto show = [](const std::string& line) { std::cout << line << std::endl; };
    manner.badCommandHandler = [show](const Scenario::BadCommand& bad) { show(bad.complaint); };
    Scenario(source, show, manner).run();
    return 0;
}

int runFile(const char* path) {
    std::ifstream file(path);
    if (!file || std::filesystem::is_directory(path)) {
        std::cerr << "brisel-simulator: cannot read " << path << '\n';
        return BadUse;
    }
    return runScript(file);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    // Whoever started this may ignore ended children; the program must hear of its own.
    std::signal(SIGCHLD, SIG_DFL);
    std::ios::sync_with_stdio(false);
    if (argumentCount == 1)
        return isatty(STDIN_FILENO) != 0 ? runInTerminal() : runScript(std::cin);
    const std::string_view argument = arguments[1];
    if (argumentCount == 2 && (argument == "--help" || argument == "-h")) {
        std::cout << Usage;
        return 0;
    }
    if (argumentCount != 2) {
        std::cerr << Usage;
        return BadUse;
    }
    return runFile(arguments[1]);
}
