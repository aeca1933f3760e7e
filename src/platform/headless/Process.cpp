// Process setup and languages of the Linux programs.
// SPDX-License-Identifier: MIT
#include "platform/headless/Process.h"

#include <fcntl.h>
#include <glib.h>
#include <unistd.h>

#include <csignal>

#include "shared/IgnoreResult.h"

namespace brisel::platform::headless {

namespace {

std::string languageOf(const std::string& locale) {
    if (locale.starts_with("zh")) return "zh-Hans";
    return locale.substr(0, locale.find_first_of("_.@"));
}

}  // namespace

void restoreProcessDefaults() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(descriptor, F_GETFD) < 0) shared::ignoreResult(open("/dev/null", O_RDWR));
    }
    std::signal(SIGCHLD, SIG_DFL);
}

std::vector<std::string> userLanguages() {
    std::vector<std::string> languages;
    for (const char* const* name = g_get_language_names(); *name != nullptr; ++name)
        languages.push_back(languageOf(*name));
    return languages;
}

}  // namespace brisel::platform::headless
