// What the program did to its surroundings, in order, one event a line.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Format.h"

namespace brisel::platform::simulated {

class Transcript {
  public:
    using Listener = std::function<void(const std::string& line)>;

    /// Hears each line as it is written.
    void setListener(Listener listener);
    /// Writes a line; line breaks in it become `\n`.
    void write(std::string_view line);
    /// Writes a formatted line.
    template <typename... Values>
    void record(std::string_view format, const Values&... values) {
        write(stringWithFormat(format, values...));
    }
    /// Keeps no lines from here on: the listener alone hears them.
    void keepNothing() { keeps_ = false; }
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

  private:
    Listener listener_;
    bool keeps_ = true;
    std::vector<std::string> lines_;
};

}  // namespace brisel::platform::simulated
