// A window of the dialog program, which runs as a process of its own while the window is open.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace brisel::platform::desktop {

/// Main thread only.
class DialogProcess {
  public:
    enum class State { Starting, Shown, Pressed, Ended };

    /// Starts the program at this path with these arguments and `input` to read. One that cannot be
    /// started has ended.
    DialogProcess(const std::string& program, const std::vector<std::string>& arguments,
                  const std::string& input = {});
    DialogProcess(const DialogProcess&) = delete;
    DialogProcess& operator=(const DialogProcess&) = delete;
    /// Takes the window away, if it is still there.
    ~DialogProcess();

    /// Readable when there is something to take in; -1 once ended.
    [[nodiscard]] int descriptor() const { return output_; }
    /// Takes in what the program has told.
    void takeIn();

    [[nodiscard]] State state() const { return state_; }
    /// Whether the window was on the screen, if only for a moment.
    [[nodiscard]] bool wasShown() const { return shown_; }
    /// What was pressed: the position of a button, the number of a menu entry. None as long as
    /// nothing was, and for a window that was closed.
    [[nodiscard]] std::optional<int> pressed() const { return pressed_; }

  private:
    void start(std::vector<std::string> words, int input);
    void understand(const std::string& line);
    void end();

    pid_t child_ = 0;
    int output_ = -1;
    std::string told_;
    State state_ = State::Starting;
    bool shown_ = false;
    std::optional<int> pressed_;
};

}  // namespace brisel::platform::desktop
