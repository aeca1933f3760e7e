// Brisel in a terminal: the platform it runs on, and its commands.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <memory>
#include <optional>
#include <string>

#include "app/AppDelegate.h"
#include "entry/console/Services.h"

namespace brisel::console {

/// The disks, folders and preferences of this machine, with a terminal for a screen.
class Console {
  public:
    /// Reads commands from the descriptor `input`.
    Console(int input, std::ostream& output);
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;
    ~Console();

    /// Starts the program and runs it until it terminates.
    void run();

  private:
    void carryOut(const std::optional<std::string>& line);

    Services services_;
    std::unique_ptr<GMainLoop, decltype(&g_main_loop_unref)> mainLoop_{
        g_main_loop_new(nullptr, FALSE), &g_main_loop_unref};
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::console
