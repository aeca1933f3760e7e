// The Mac application, from its own sources, on the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Program.h"
#include "simulator/Scenario.h"

namespace brisel::tests::macos {

/// Runs in the real main loop, which asks the scenario for commands when there is nothing else to
/// do in its default mode. Its end is the process's end; one that has misused a framework or lost
/// an object says so on standard error, and has an exit status of its own.
class StagedProgram final : public simulator::Program {
  public:
    /// Asks `scenario` for commands; its simulated Mac becomes the world of the frameworks.
    explicit StagedProgram(simulator::Scenario& scenario);

    /// Never returns.
    void start() override;
    [[nodiscard]] bool started() const override { return started_; }
    [[nodiscard]] const NTFSVolumeManager* manager() const override;

    [[nodiscard]] std::vector<platform::MenuItem> menuItems() const override;
    void choose(std::size_t index) override;
    void respond(const platform::NotificationResponse& response) override;
    void terminate() override;

    void turnUntilIdle() override {}
    void turnWhileBlocked() override;

    [[noreturn]] void end() override;

    /// What the main loop does when it turns in its default mode.
    void turn();
    /// The main loop has done what a response to a notification left to it.
    void responseWasHandled() { awaitsResponse_ = false; }

  private:
    simulator::Scenario& scenario_;
    bool started_ = false;
    bool awaitsResponse_ = false;
};

}  // namespace brisel::tests::macos
