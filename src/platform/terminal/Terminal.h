// Line input and output on the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/Subscription.h"

namespace brisel::platform::terminal {

/// Main thread only. `ask` returns the next line; other lines go to the line handler, called from
/// GLib's main loop.
class Terminal {
  public:
    /// A line without its newline; nullopt at end of input.
    using LineHandler = std::function<void(const std::optional<std::string>& line)>;

    /// `input` and `termination` are descriptors that the caller keeps open. Once `termination` is
    /// readable, questions return nullopt; -1 disables it.
    Terminal(int input, std::ostream& output, int termination = -1)
        : input_(input), termination_(termination), output_(output) {}

    /// Prints `text` and a newline. Makes control characters visible, so that a volume's label
    /// cannot send escape sequences.
    void print(std::string_view text);
    /// Prints `question` and blocks for a line; nullopt at end of input and on termination.
    [[nodiscard]] std::optional<std::string> ask(std::string_view question);
    /// Sets the only line handler, which also gets the lines already read.
    [[nodiscard]] Subscription handleLines(LineHandler handler);

  private:
    /// Waits for input; false on termination.
    [[nodiscard]] bool wait() const;
    void readMore();
    [[nodiscard]] std::optional<std::string> takeLine();
    void handOutLines();
    void handOutSoon();

    int input_;
    int termination_;
    std::ostream& output_;
    std::string typed_;
    bool ended_ = false;
    LineHandler handler_;
    Subscription reading_;
    Subscription handingOut_;
};

/// Parses a number from 1 to `most`; nullopt otherwise.
std::optional<std::size_t> numberUpTo(const std::string& text, std::size_t most);

}  // namespace brisel::platform::terminal
