// Brisel itself, running on a simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "app/AppDelegate.h"
#include "platform/simulated/Mac.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::simulator {

class Program {
  public:
    /// `mac` must outlive the program.
    explicit Program(platform::simulated::Mac& mac) : mac_(mac) {}

    /// Loads the interface and runs start-up; the main loop has yet to turn.
    void start();
    [[nodiscard]] bool started() const { return delegate_ != nullptr; }
    /// Null before the program was started.
    [[nodiscard]] NTFSVolumeManager* manager() const { return manager_.get(); }
    [[nodiscard]] AppDelegate* delegate() const { return delegate_.get(); }

  private:
    NTFSVolumeManager& sharedManager();

    platform::simulated::Mac& mac_;
    std::unique_ptr<NTFSVolumeManager> manager_;
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::simulator
