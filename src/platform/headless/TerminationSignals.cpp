// Catches SIGINT, SIGTERM and SIGHUP.
// SPDX-License-Identifier: MIT
#include "platform/headless/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

#include "shared/IgnoreResult.h"

namespace brisel::platform::headless {

namespace {

constexpr std::array EndingSignals{SIGINT, SIGTERM, SIGHUP};

// A signal handler can reach only globals.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
volatile std::sig_atomic_t signalled = -1;

extern "C" void noteSignal(int /*signal*/) {
    const int saved = errno;
    const char anything = 0;
    shared::ignoreResult(write(signalled, &anything, sizeof anything));
    errno = saved;
}

}  // namespace

TerminationSignals::TerminationSignals() {
    std::array<int, 2> ends{-1, -1};
    // Without a pipe the signals keep their default actions.
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    readEnd_ = shared::Descriptor(ends[0]);
    writeEnd_ = shared::Descriptor(ends[1]);
    signalled = ends[1];
    struct sigaction action = {};
    action.sa_handler = &noteSignal;
    for (const int signal : EndingSignals)
        sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : EndingSignals)
        std::signal(signal, SIG_DFL);
    signalled = -1;
}

}  // namespace brisel::platform::headless
