// Modal alerts, shown by brisel-dialog.
// SPDX-License-Identifier: MIT
#include "platform/desktop/Alert.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <iterator>

#include "platform/common/AlertButtons.h"

namespace brisel::platform::desktop {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int NothingPressed = -1;

bool isWaiting(const DialogProcess& window) {
    return window.state() == DialogProcess::State::Starting ||
           window.state() == DialogProcess::State::Shown;
}

/// Timeout for poll in milliseconds; -1, no timeout, once the window is shown.
int patienceWith(const DialogProcess& window, Clock::time_point latestShown) {
    if (window.state() == DialogProcess::State::Shown) return -1;
    const auto left = std::chrono::ceil<milliseconds>(latestShown - Clock::now());
    return static_cast<int>(std::max(left, milliseconds(0)).count());
}

}  // namespace

int Alert::runModal(const AlertContent& content) {
    const auto buttons = common::buttonsOf(content);
    std::vector<std::string> arguments{"alert", content.messageText, content.informativeText};
    arguments.insert(arguments.end(), buttons.begin(), buttons.end());
    DialogProcess window(dependencies_.dialog, arguments);
    const auto waiting = waitFor(window);
    const int pressed = window.pressed().value_or(NothingPressed);
    if (pressed >= 0 && pressed < std::ssize(buttons)) return AlertFirstButtonReturn + pressed;
    if (waiting == Waiting::Ended && !window.wasShown()) logAndNotify(content);
    return buttons.size() > 1 ? NothingPressed : AlertFirstButtonReturn;
}

Alert::Waiting Alert::waitFor(DialogProcess& window) const {
    const auto latestShown = Clock::now() + dependencies_.patience;
    while (isWaiting(window)) {
        std::array<pollfd, 3> awaited{
            pollfd{.fd = window.descriptor(), .events = POLLIN, .revents = 0},
            pollfd{.fd = dependencies_.mainThread.descriptor(), .events = POLLIN, .revents = 0},
            pollfd{.fd = dependencies_.terminationSignals, .events = POLLIN, .revents = 0}};
        const int ready = poll(awaited.data(), awaited.size(), patienceWith(window, latestShown));
        if (ready < 0 && errno == EINTR) continue;
        if (ready <= 0) return Waiting::Ended;
        if (awaited[2].revents != 0) return Waiting::Interrupted;
        if (awaited[1].revents != 0) dependencies_.mainThread.work();
        if (awaited[0].revents != 0) window.takeIn();
    }
    return Waiting::Ended;
}

void Alert::logAndNotify(const AlertContent& content) const {
    dependencies_.log.log("Cannot show an alert: %@ %@", content.messageText,
                          content.informativeText);
    dependencies_.notifications.showCritical(content.messageText, content.informativeText);
}

}  // namespace brisel::platform::desktop
