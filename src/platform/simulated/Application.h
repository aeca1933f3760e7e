// The application object of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

#include "platform/Application.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class Application final : public platform::Application {
  public:
    explicit Application(Transcript& transcript) : transcript_(transcript) {}
    /// Throws ProgramEnded after the termination step.
    void terminate() override;
    void activateIgnoringOtherApps() override { transcript_.write("activate"); }
    void orderFrontStandardAboutPanel() override { transcript_.write("about"); }

    /// `step` stands for the delegate's applicationWillTerminate.
    void setTerminationStep(std::function<void()> step) { terminationStep_ = std::move(step); }

  private:
    Transcript& transcript_;
    std::function<void()> terminationStep_;
};

}  // namespace brisel::platform::simulated
