// Sources of scenario commands.
// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <optional>
#include <string>

namespace brisel::simulator {

class CommandSource {
  public:
    virtual ~CommandSource() = default;

    /// The next line without its line end; absent at the end. A terminal shows `prompt`.
    virtual std::optional<std::string> nextLine(const std::string& prompt) = 0;
};

/// Lines of a file or pipe.
class StreamSource final : public CommandSource {
  public:
    explicit StreamSource(std::istream& stream) : stream_(stream) {}
    std::optional<std::string> nextLine(const std::string& prompt) override;

  private:
    std::istream& stream_;
};

/// Lines typed at a terminal, with line editing if built with libedit.
class TerminalSource final : public CommandSource {
  public:
    std::optional<std::string> nextLine(const std::string& prompt) override;
};

}  // namespace brisel::simulator
