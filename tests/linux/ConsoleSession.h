// brisel-console as a child process, used as a person uses it: by reading and typing.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>

namespace brisel::tests {

class ConsoleSession {
  public:
    /// Starts the program with `home` as home folder, and with preferences of its own there.
    ConsoleSession(const std::string& program, const std::string& home);
    ConsoleSession(const ConsoleSession&) = delete;
    ConsoleSession& operator=(const ConsoleSession&) = delete;
    /// Ends the program, by force if it must.
    ~ConsoleSession();

    void type(const std::string& line) const;
    /// Waits until the text has been printed, after what was waited for before; false if it does
    /// not come in time.
    bool waitFor(const std::string& text);
    /// Types the number that stands before the title in the menu printed last.
    bool choose(const std::string& title);
    /// Asks for the menu and returns it, a line an item.
    [[nodiscard]] std::string menu();
    /// The rest of the line after the text that was waited for last.
    [[nodiscard]] std::string restOfLine();
    /// All that was printed so far.
    [[nodiscard]] const std::string& output() const { return output_; }
    /// Whether the text was printed, from the start on.
    [[nodiscard]] bool printed(const std::string& text) const;
    /// Types `quit` and returns the exit status.
    int quit();

  private:
    /// False when nothing more came before `deadline`.
    bool readMore(std::chrono::steady_clock::time_point deadline);

    pid_t child_ = 0;
    int input_ = -1;
    int outputEnd_ = -1;
    std::string output_;
    std::size_t seen_ = 0;
};

}  // namespace brisel::tests
