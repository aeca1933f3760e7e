// The application object of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Application.h"

#include "platform/simulated/ProgramEnded.h"

namespace brisel::platform::simulated {

void Application::terminate() {
    transcript_.write("terminate");
    if (terminationStep_) terminationStep_();
    throw ProgramEnded();
}

}  // namespace brisel::platform::simulated
