// The macOS application, built from its own sources on the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/Program.h"
#include "simulator/Scenario.h"

namespace brisel::tests::macos {

/// Runs the real main loop. When it is idle in its default mode, it asks the scenario for the next
/// command. The end of the program ends the process; after a framework misuse or a leaked object,
/// it prints them to standard error and exits with 3.
class StagedProgram final : public simulator::Program {
  public:
    /// Takes commands from `scenario`; its simulated Mac becomes the frameworks' world.
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

    /// Called when the main loop turns in its default mode.
    void turn();
    /// Called after the main loop has done the work of a notification response.
    void responseWasHandled() { awaitsResponse_ = false; }

  private:
    simulator::Scenario& scenario_;
    bool started_ = false;
    bool awaitsResponse_ = false;
};

}  // namespace brisel::tests::macos
