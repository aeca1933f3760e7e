// Drives brisel-console as a child process, through its standard input and output.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <chrono>
#include <string>

namespace brisel::tests {

class ConsoleSession {
  public:
    /// Starts `program` with `home` as its home directory, which also holds its preferences.
    ConsoleSession(const std::string& program, const std::string& home);
    ConsoleSession(const ConsoleSession&) = delete;
    ConsoleSession& operator=(const ConsoleSession&) = delete;
    ~ConsoleSession();

    void type(const std::string& line) const;
    /// Waits until `text` is printed after the last match; false on timeout.
    bool waitFor(const std::string& text);
    /// Waits for the menu and types the number of the item `title`; false if it is absent.
    bool choose(const std::string& title);
    /// Types `menu` and returns the printed menu, one line per item.
    /// Closes an alert that is up first.
    [[nodiscard]] std::string menu();
    /// The rest of the line after the last match of waitFor().
    [[nodiscard]] std::string restOfLine();
    [[nodiscard]] const std::string& output() const { return output_; }
    int quit();

  private:
    /// Reads more output; false if none arrives before `deadline`.
    bool readMore(std::chrono::steady_clock::time_point deadline);

    pid_t child_ = 0;
    int input_ = -1;
    int outputEnd_ = -1;
    std::string output_;
    std::size_t seen_ = 0;
};

}  // namespace brisel::tests
