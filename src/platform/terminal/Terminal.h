// Lines in from the terminal, lines out to it.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/Subscription.h"

namespace brisel::platform::terminal {

/// Main thread only. What is typed while nobody asks goes to the line handler, as GLib's main
/// loop turns; while somebody asks, that one gets the next line.
class Terminal {
  public:
    /// A line without its end; none at the end of input.
    using LineHandler = std::function<void(const std::optional<std::string>& line)>;

    /// `input` is a descriptor, which stays the caller's. So is `termination`, or -1 for none:
    /// once it can be read from, every question counts as unanswered.
    Terminal(int input, std::ostream& output, int termination = -1)
        : input_(input), termination_(termination), output_(output) {}

    /// Prints the text and a line end. Control characters, which a volume's label may hold, are
    /// made visible, so that nothing but the program's own lines steers the terminal.
    void print(std::string_view text);
    /// Blocks until a line was typed; none at the end of input or once interrupted.
    [[nodiscard]] std::optional<std::string> ask(std::string_view question);
    /// One handler at a time; what was typed before comes to it when the loop turns.
    [[nodiscard]] Subscription handleLines(LineHandler handler);

  private:
    /// Waits for something to read; false once interrupted.
    [[nodiscard]] bool wait() const;
    /// Takes in what can be read.
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

/// The number if the text is one from 1 to `most`.
std::optional<std::size_t> numberUpTo(const std::string& text, std::size_t most);

}  // namespace brisel::platform::terminal
