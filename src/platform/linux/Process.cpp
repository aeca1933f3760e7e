// The process as the programs of a Linux machine want it.
// SPDX-License-Identifier: MIT
#include "platform/linux/Process.h"

#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include <csignal>

namespace brisel::platform::linux {

void prepareProcess() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) static_cast<void>(open("/dev/null", O_RDWR) >= 0);
    }
    std::signal(SIGCHLD, SIG_DFL);
}

std::string userLanguage() {
    const std::string locale = *g_get_language_names();
    if (locale.starts_with("zh")) return "zh-Hans";
    return locale.substr(0, locale.find_first_of("_.@"));
}

}  // namespace brisel::platform::linux
