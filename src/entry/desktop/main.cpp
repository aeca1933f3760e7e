// brisel: the utility in the desktop's tray.
// SPDX-License-Identifier: MIT
#include <gio/gio.h>
#include <malloc.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "entry/desktop/Desktop.h"
#include "platform/headless/GLibOwners.h"
#include "platform/headless/Process.h"

namespace {

constexpr std::string_view Usage =
    "usage: brisel [--help | --version]\n"
    "Watches for NTFS volumes from the desktop's tray and offers to re-mount them read-write.\n"
    "Started again it shows its menu in a window.\n";

int answer(std::string_view argument) {
    if (argument == "--version") {
        std::cout << "Brisel " BRISEL_VERSION "\n";
    } else if (argument == "--help" || argument == "-h") {
        std::cout << Usage;
    } else {
        std::cerr << Usage;
        return 2;
    }
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    // The threads take turns more than they compete: one pool of memory serves them all, and what
    // one frees the next one uses.
    mallopt(M_ARENA_MAX, 1);
    brisel::platform::headless::restoreProcessDefaults();
    if (argumentCount > 1) return answer(argumentCount == 2 ? arguments[1] : "");
    std::setlocale(LC_ALL, "");
    brisel::platform::headless::CallError error;
    // As long as the process, as the program is.
    static const brisel::platform::headless::OwnedObject<GDBusConnection> bus(
        g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, error.receive()));
    if (!bus) {
        std::cerr << "brisel: There is no desktop session to show a tray icon in: "
                  << error.message() << "\nIn a terminal, use brisel-console.\n";
        return EXIT_FAILURE;
    }
    static brisel::desktop::Desktop desktop(bus.get());
    return desktop.run();
}
