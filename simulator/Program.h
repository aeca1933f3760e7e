// The program that a scenario drives, as the scenario's commands use it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Menu.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::simulator {

/// However the program is built on a simulated Mac, it is started, used and looked at through
/// this.
class Program {
  public:
    Program() = default;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    virtual ~Program() = default;

    /// Loads the interface and runs start-up. A program with a main loop of its own returns only
    /// after its end.
    virtual void start() = 0;
    [[nodiscard]] virtual bool started() const = 0;
    /// Null before the program was started.
    [[nodiscard]] virtual const NTFSVolumeManager* manager() const = 0;

    /// The status menu's items as they are now, from the top.
    [[nodiscard]] virtual std::vector<platform::MenuItem> menuItems() const = 0;
    /// Does what choosing the item at this place does; it must have an action.
    virtual void choose(std::size_t index) = 0;
    /// The user's response to a notification.
    virtual void respond(const platform::NotificationResponse& response) = 0;
    /// The system asks the application to terminate.
    virtual void terminate() = 0;

    /// Lets the main loop turn after a command. Returns when it is idle, or at once where the main
    /// loop is the one that asks for commands.
    virtual void turnUntilIdle() = 0;
    /// Lets turn what turns while an alert or prompt blocks the program.
    virtual void turnWhileBlocked() = 0;

    /// Ends the program in the middle of whatever it does.
    [[noreturn]] virtual void end() = 0;
};

}  // namespace brisel::simulator
