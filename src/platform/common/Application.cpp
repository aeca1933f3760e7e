// Termination of the application, for platforms without an application framework.
// SPDX-License-Identifier: MIT
#include "platform/common/Application.h"

namespace brisel::platform::common {

void Application::terminate() {
    if (std::exchange(terminated_, true)) return;
    if (terminationStep_) terminationStep_();
    if (end_) end_();
}

}  // namespace brisel::platform::common
