// What is left of a desktop when there is only a terminal.
// SPDX-License-Identifier: MIT
#include "platform/terminal/SmallServices.h"

namespace brisel::platform::terminal {

void Application::terminate() {
    if (std::exchange(terminated_, true)) return;
    if (terminationStep_) terminationStep_();
    if (end_) end_();
}

}  // namespace brisel::platform::terminal
