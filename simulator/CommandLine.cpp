// The command line of programs that run scenarios.
// SPDX-License-Identifier: MIT
#include "simulator/CommandLine.h"

#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

namespace brisel::simulator {

namespace {

constexpr int BadUse = 2;

void printLine(const std::string& line) {
    std::cout << line << '\n';
}

Scenario::Options basicOptions(const CommandLine& commandLine) {
    Scenario::Options options;
    if (commandLine.makeProgram) options.makeProgram = commandLine.makeProgram;
    return options;
}

int runScript(const CommandLine& commandLine, std::istream& stream) {
    StreamSource source(stream);
    auto options = basicOptions(commandLine);
    options.badCommandHandler = [](const Scenario::BadCommand& bad) {
        std::cout.flush();
        std::cerr << "line " << bad.line << ": " << bad.complaint << '\n';
    };
    // Lets a program on a pipe read each command's output before it sends the next command.
    options.afterCommand = [] { std::cout.flush(); };
    return Scenario(source, printLine, options).run() ? 0 : BadUse;
}

int runInTerminal(const CommandLine& commandLine) {
    std::cout << "Brisel on a simulated Mac. Type \"start\", then for example\n"
                 "  attach disk4s1 kind=ntfs name=Data path=/Volumes/Data\n"
                 "\"help\" lists all commands, \"quit\" ends.\n"
              << std::flush;
    TerminalSource source;
    auto options = basicOptions(commandLine);
    options.onBadCommand = Scenario::OnBadCommand::GoOn;
    options.echo = Scenario::Echo::Nothing;
    // Flushes each line: libedit writes the next prompt past std::cout.
    const auto show = [](const std::string& line) { std::cout << line << std::endl; };
    options.badCommandHandler = [show](const Scenario::BadCommand& bad) { show(bad.complaint); };
    Scenario(source, show, options).run();
    return 0;
}

int runFile(const CommandLine& commandLine, const char* path) {
    std::ifstream file(path);
    if (!file || std::filesystem::is_directory(path)) {
        std::cerr << commandLine.name << ": cannot read " << path << '\n';
        return BadUse;
    }
    return runScript(commandLine, file);
}

std::string usage(const CommandLine& commandLine) {
    return "usage: " + commandLine.name + " [FILE]\n" + commandLine.purpose + '\n';
}

}  // namespace

int run(const CommandLine& commandLine, int argumentCount, char** arguments) {
    // The parent may have set SIGCHLD to SIG_IGN, with which waitpid reports no exit status.
    std::signal(SIGCHLD, SIG_DFL);
    std::ios::sync_with_stdio(false);
    if (argumentCount == 1) {
        return isatty(STDIN_FILENO) != 0 ? runInTerminal(commandLine)
                                         : runScript(commandLine, std::cin);
    }
    const std::string_view argument = arguments[1];
    if (argumentCount == 2 && (argument == "--help" || argument == "-h")) {
        std::cout << usage(commandLine);
        return 0;
    }
    if (argumentCount != 2) {
        std::cerr << usage(commandLine);
        return BadUse;
    }
    return runFile(commandLine, arguments[1]);
}

}  // namespace brisel::simulator
