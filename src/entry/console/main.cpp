// brisel-console: Brisel for machines without a desktop, in a terminal.
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <clocale>
#include <iostream>
#include <string_view>

#include "entry/console/Console.h"
#include "platform/headless/Process.h"

namespace {

constexpr std::string_view Usage =
    "usage: brisel-console\n"
    "Watches for NTFS volumes and re-mounts them read-write, in this terminal.\n";

}  // namespace

int main(int argumentCount, char** arguments) {
    brisel::platform::headless::restoreProcessDefaults();
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
