// Running a scenario: commands in, transcript out.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "platform/simulated/Mac.h"
#include "simulator/Commands.h"
#include "simulator/CommandSource.h"
#include "simulator/Program.h"

namespace brisel::simulator {

/// One simulated Mac with the program on it, driven by commands until they end, the program
/// terminates, or a command is bad and that is to stop it.
class Scenario final : private platform::simulated::Person {
  public:
    using Output = std::function<void(const std::string& line)>;

    struct BadCommand {
        /// Counted from 1, blank lines and comments included.
        std::size_t line = 0;
        std::string complaint;
    };
    using BadCommandHandler = std::function<void(const BadCommand&)>;

    enum class OnBadCommand { Stop, GoOn };
    enum class Echo { Commands, Nothing };

    struct Manner {
        OnBadCommand onBadCommand = OnBadCommand::Stop;
        Echo echo = Echo::Commands;
        /// Hears of each bad command.
        BadCommandHandler badCommandHandler = [](const BadCommand&) {};
        /// Called after each command, also while an alert or prompt blocks the program.
        std::function<void()> afterCommand = [] {};
    };

    /// `source` must outlive the scenario.
    Scenario(CommandSource& source, Output output, Manner manner);
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;
    ~Scenario() override = default;

    /// Runs to the end. False when a bad command stopped it.
    bool run();

    [[nodiscard]] platform::simulated::Mac& mac() { return mac_; }
    [[nodiscard]] Program& program() { return program_; }

  private:
    int answerAlert(const platform::AlertContent& alert) override;
    platform::OSStatus answerPasswordPrompt(const std::string& right) override;

    /// Reads and carries out one line; false when there are no more.
    bool step();
    int readUntilAnswered();
    [[nodiscard]] Complaint carryOut(const std::string& line);
    [[nodiscard]] Complaint help() const;
    [[nodiscard]] std::string prompt() const;

    CommandSource& source_;
    Output output_;
    Manner manner_;
    std::size_t lineNumber_ = 0;
    bool stopped_ = false;
    platform::simulated::Mac mac_;
    Program program_;
    Stage stage_;
};

}  // namespace brisel::simulator
