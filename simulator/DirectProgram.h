// Brisel's core, straight on the services of a simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <vector>

#include "app/AppDelegate.h"
#include "platform/simulated/Mac.h"
#include "simulator/Program.h"

namespace brisel::simulator {

class DirectProgram final : public Program {
  public:
    /// `mac` must outlive the program.
    explicit DirectProgram(platform::simulated::Mac& mac) : mac_(mac) {}

    /// The main loop has yet to turn when it returns.
    void start() override;
    [[nodiscard]] bool started() const override { return delegate_ != nullptr; }
    [[nodiscard]] const NTFSVolumeManager* manager() const override { return manager_.get(); }
    [[nodiscard]] NTFSVolumeManager* manager() { return manager_.get(); }
    [[nodiscard]] AppDelegate* delegate() const { return delegate_.get(); }

    [[nodiscard]] std::vector<platform::MenuItem> menuItems() const override;
    void choose(std::size_t index) override;
    void respond(const platform::NotificationResponse& response) override;
    void terminate() override;

    void turnUntilIdle() override { mac_.mainLoop.turnUntilIdle(); }
    void turnWhileBlocked() override {}

    /// Throws ProgramEnded.
    [[noreturn]] void end() override;

  private:
    NTFSVolumeManager& sharedManager();

    platform::simulated::Mac& mac_;
    std::unique_ptr<NTFSVolumeManager> manager_;
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::simulator
