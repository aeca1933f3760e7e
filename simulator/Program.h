// The interface through which scenario commands drive the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Menu.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::simulator {

/// One implementation for each way of building the program on a simulated Mac.
class Program {
  public:
    Program() = default;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    virtual ~Program() = default;

    /// Loads the interface and runs start-up. A program with its own main loop returns only after
    /// its end.
    virtual void start() = 0;
    [[nodiscard]] virtual bool started() const = 0;
    /// Null before the start.
    [[nodiscard]] virtual const NTFSVolumeManager* manager() const = 0;

    /// From the top.
    [[nodiscard]] virtual std::vector<platform::MenuItem> menuItems() const = 0;
    /// Chooses the item at `index`, which must have an action.
    virtual void choose(std::size_t index) = 0;
    virtual void respond(const platform::NotificationResponse& response) = 0;
    /// Asks the application to terminate, as the system does.
    virtual void terminate() = 0;

    /// Runs the main loop until idle, after a command. Does nothing if that loop itself reads the
    /// commands.
    virtual void turnUntilIdle() = 0;
    /// Runs the main loop in the modes that an alert or prompt leaves active.
    virtual void turnWhileBlocked() = 0;

    /// Ends the program in any state.
    [[noreturn]] virtual void end() = 0;
};

}  // namespace brisel::simulator
