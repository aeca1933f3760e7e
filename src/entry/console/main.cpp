// brisel-console: Brisel for machines without a desktop, in a terminal.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <iostream>

#include "entry/console/Console.h"

int main(int argumentCount, char** /*arguments*/) {
    // Whoever started this may ignore ended children; the program must hear of its own.
    std::signal(SIGCHLD, SIG_DFL);
    if (argumentCount > 1) {
        std::cerr << "usage: brisel-console\n"
                     "Watches for NTFS volumes and re-mounts them read-write, in this terminal.\n";
        return 2;
    }
    std::setlocale(LC_ALL, "");
    // As long as the process: the program's one manager keeps referring to it.
    static brisel::console::Console console(STDIN_FILENO, std::cout);
    console.run();
    return 0;
}
