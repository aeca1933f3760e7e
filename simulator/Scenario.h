// Runs a scenario: reads commands and writes the transcript.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "platform/simulated/Mac.h"
#include "simulator/Commands.h"
#include "simulator/CommandSource.h"
#include "simulator/Program.h"

namespace brisel::simulator {

/// The program on a simulated Mac, driven by commands until they end, the program terminates, or a
/// bad command stops it (OnBadCommand::Stop).
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

    using ProgramMaker = std::function<std::unique_ptr<Program>(Scenario&)>;

    struct Options {
        OnBadCommand onBadCommand = OnBadCommand::Stop;
        Echo echo = Echo::Commands;
        BadCommandHandler badCommandHandler = [](const BadCommand&) {};
        /// Called after each command, also while an alert or prompt blocks the program.
        std::function<void()> afterCommand = [] {};
        /// Builds the program on the scenario's simulated Mac; by default, the core directly on its
        /// services.
        ProgramMaker makeProgram = &makeDirectProgram;
    };

    /// `source` must outlive the scenario.
    Scenario(CommandSource& source, Output output, Options options);
    Scenario(const Scenario&) = delete;
    Scenario& operator=(const Scenario&) = delete;
    ~Scenario() override = default;

    /// Runs to the end. False if a bad command stopped it.
    bool run();
    /// Reads and executes one line, for a program whose main loop reads the commands. False at the
    /// end of the commands.
    bool step();
    /// True if a bad command has stopped the scenario.
    [[nodiscard]] bool stopped() const { return stopped_; }

    [[nodiscard]] platform::simulated::Mac& mac() { return mac_; }
    [[nodiscard]] Program& program() { return *program_; }

  private:
    int answerAlert(const platform::AlertContent& alert) override;
    platform::OSStatus answerPasswordPrompt(const std::string& right) override;

    static std::unique_ptr<Program> makeDirectProgram(Scenario& scenario);
    int readUntilAnswered();
    [[nodiscard]] Complaint carryOut(const std::string& line);
    [[nodiscard]] Complaint help() const;
    [[nodiscard]] std::string prompt() const;

    CommandSource& source_;
    Output output_;
    Options options_;
    std::size_t lineNumber_ = 0;
    bool stopped_ = false;
    platform::simulated::Mac mac_;
    const std::unique_ptr<Program> program_;
    Stage stage_;
};

}  // namespace brisel::simulator
