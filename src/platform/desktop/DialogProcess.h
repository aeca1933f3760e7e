// A window, shown by a brisel-dialog process that ends with it.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/desktop/ActivationToken.h"
#include "shared/Descriptor.h"

namespace brisel::platform::desktop {

/// brisel-dialog: its path, and the token that its next window gets.
struct DialogProgram {
    std::string path;
    ActivationToken& activationToken;
};

/// Main thread only.
class DialogProcess {
  public:
    enum class State { Starting, Shown, Pressed, Ended };

    /// Starts `program` with `input` on its standard input. On failure the state is Ended.
    DialogProcess(const DialogProgram& program, const std::vector<std::string>& arguments,
                  const std::string& input = {});
    DialogProcess(const DialogProcess&) = delete;
    DialogProcess& operator=(const DialogProcess&) = delete;
    /// Kills the process, which closes the window.
    ~DialogProcess();

    /// -1 once ended.
    [[nodiscard]] int descriptor() const { return output_.number(); }
    /// Reads output and updates the state. Call when the descriptor is readable.
    void takeIn();

    [[nodiscard]] State state() const { return state_; }
    /// True if the window has been on screen.
    [[nodiscard]] bool wasShown() const { return shown_; }
    /// Index of the pressed button, or number of the chosen menu entry. nullopt before that, and
    /// for a closed window.
    [[nodiscard]] std::optional<int> pressed() const { return pressed_; }

  private:
    void start(std::vector<std::string> words, std::vector<std::string> environment, int input);
    void understand(const std::string& line);
    void end();

    pid_t child_ = 0;
    shared::Descriptor output_;
    std::string told_;
    State state_ = State::Starting;
    bool shown_ = false;
    std::optional<int> pressed_;
};

}  // namespace brisel::platform::desktop
