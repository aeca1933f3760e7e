// The program's effects on its platform, in order, one event per line.
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

    /// Calls `listener` with each line as it is written.
    void setListener(Listener listener);
    /// Writes a line; escapes line breaks as `\n`.
    void write(std::string_view line);
    template <typename... Values>
    void record(std::string_view format, const Values&... values) {
        write(stringWithFormat(format, values...));
    }
    /// Stops storing lines; the listener still receives them.
    void keepNothing() { keeps_ = false; }
    [[nodiscard]] const std::vector<std::string>& lines() const { return lines_; }

  private:
    Listener listener_;
    bool keeps_ = true;
    std::vector<std::string> lines_;
};

}  // namespace brisel::platform::simulated
