// brisel-console: Brisel for machines without a desktop, in a terminal.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <iostream>
#include <string_view>

#include "entry/console/Console.h"

namespace {

constexpr std::string_view Usage =
    "usage: brisel-console\n"
    "Watches for NTFS volumes and re-mounts them read-write, in this terminal.\n";

// A standard descriptor that was closed would be taken by the next thing that is opened.
void openStandardDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) static_cast<void>(open("/dev/null", O_RDWR) >= 0);
    }
}

}  // namespace

int main(int argumentCount, char** arguments) {
    openStandardDescriptors();
    // Whoever started this may ignore ended children; the program must hear of its own.
    std::signal(SIGCHLD, SIG_DFL);
    if (argumentCount > 1) {
        const std::string_view argument = arguments[1];
        const bool asked = argumentCount == 2 && (argument == "--help" || argument == "-h");
        (asked ? std::cout : std::cerr) << Usage;
        return asked ? 0 : 2;
    }
    std::setlocale(LC_ALL, "");
    // As long as the process: the program's one manager keeps referring to it.
    static brisel::console::Console console(STDIN_FILENO, std::cout);
    console.run();
    return 0;
}
