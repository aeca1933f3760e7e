// Sanitizes the inherited process state.
// SPDX-License-Identifier: MIT
#include "tools/mount-tool/InheritedState.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace brisel::mounttool {

namespace {

bool openStandardDescriptors() {
    int number = -1;
    do {
        number = open("/dev/null", O_RDWR);
    } while (number >= 0 && number <= STDERR_FILENO);
    return number >= 0;
}

bool closeAllOthers() {
    return syscall(SYS_close_range, STDERR_FILENO + 1, UINT_MAX, 0) == 0;
}

// Blocks signals so that a mount is never half done. Resets SIGCHLD: if it is ignored, waitpid
// fails.
void blockSignals() {
    std::signal(SIGCHLD, SIG_DFL);
    sigset_t all;
    sigfillset(&all);
    sigprocmask(SIG_SETMASK, &all, nullptr);
}

// The driver inherits the limits; a CPU limit would kill it while it writes.
void liftLimits() {
    // An unlimited stack selects the legacy, predictable memory layout.
    constexpr rlim_t UsualStack = 8U << 20U;
    constexpr std::array Limits{
        std::pair{RLIMIT_CPU, RLIM_INFINITY},   std::pair{RLIMIT_RTTIME, RLIM_INFINITY},
        std::pair{RLIMIT_FSIZE, RLIM_INFINITY}, std::pair{RLIMIT_DATA, RLIM_INFINITY},
        std::pair{RLIMIT_AS, RLIM_INFINITY},    std::pair{RLIMIT_STACK, UsualStack},
        std::pair{RLIMIT_NOFILE, RLIM_INFINITY}};
    for (const auto& [limit, value] : Limits) {
        const rlimit wanted{value, value};
        if (setrlimit(limit, &wanted) == 0) continue;
        rlimit most{};
        getrlimit(limit, &most);
        most.rlim_cur = most.rlim_max;
        setrlimit(limit, &most);
    }
}

}  // namespace

std::optional<Refusal> resetInheritedState() {
    constexpr mode_t OwnerOnly = 077;
    if (!openStandardDescriptors()) return refuseByError("/dev/null cannot be opened");
    if (!closeAllOthers()) return refuseByError("This needs Linux 5.9 or later");
    blockSignals();
    liftLimits();
    umask(OwnerOnly);
    if (clearenv() != 0 || chdir("/") != 0)
        return refuseByError("The environment or working folder cannot be reset");
    return std::nullopt;
}

}  // namespace brisel::mounttool
