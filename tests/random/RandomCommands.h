// Makes random commands that fit the state of the scenario they drive.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "simulator/Scenario.h"

namespace brisel::tests {

/// The same seed makes the same commands on the same program. A command that turns out to be bad
/// is forgotten.
class RandomCommands final : public simulator::CommandSource {
  public:
    using Lines = std::vector<std::string>;

    /// With no steps a short scenario, which may end early and in a bad command.
    RandomCommands(unsigned seed, std::size_t steps);

    /// The scenario that reads the commands, before it does.
    void drive(simulator::Scenario& scenario) { scenario_ = &scenario; }
    /// To be told each line of the transcript, and of each bad command.
    void hear(const std::string& line);
    void forgetBadCommand();

    std::optional<std::string> nextLine(const std::string& prompt) override;

    [[nodiscard]] const Lines& given() const { return given_; }
    /// The names of the commands given, and the states of the program in which disks went.
    [[nodiscard]] const std::set<std::string>& covered() const { return covered_; }

  private:
    static constexpr const char* AlertPrompt = "alert> ";
    static constexpr const char* PasswordPrompt = "password> ";

    /// Makes a command, or none where none would fit.
    using Maker = std::function<std::optional<std::string>()>;

    [[nodiscard]] unsigned below(std::size_t limit);
    [[nodiscard]] bool odds(unsigned percent) { return below(100) < percent; }
    template <typename List>
    [[nodiscard]] const auto& pick(const List& list) {
        return list[below(list.size())];
    }
    [[nodiscard]] std::string word(const std::string& text);
    [[nodiscard]] std::string words(const std::string& name, const Lines& arguments);

    void give(std::string line);
    void giveBeforeStart();
    void giveEnding();
    [[nodiscard]] std::optional<std::string> nextCommand();
    [[nodiscard]] std::string moment() const;
    [[nodiscard]] Lines disks(bool attached) const;
    [[nodiscard]] Lines disksWithoutRecord() const;
    [[nodiscard]] std::string folder();
    [[nodiscard]] Lines properties(unsigned percent, bool mayBeEmpty);

    // RandomSteps.cpp
    std::optional<std::string> step();
    std::optional<std::string> stepOfTheProgram();
    std::optional<std::string> stepOfTheSurroundings();
    std::optional<std::string> stepOfDisks(unsigned kind);
    std::optional<std::string> attach();
    std::optional<std::string> detach();
    std::optional<std::string> plugInAgain();
    std::string hold();
    std::string tool();
    std::string script();
    std::optional<std::string> choose();
    std::optional<std::string> chooseTwoAtOnce();
    std::string respond();
    std::string answer();

    std::mt19937 chance_;
    const bool long_;
    std::size_t stepsBeforeStart_;
    std::size_t steps_;
    simulator::Scenario* scenario_ = nullptr;
    std::deque<Maker> next_;
    bool startGiven_ = false;
    bool endingGiven_ = false;
    bool badCommandGiven_ = false;
    bool holding_ = false;
    std::string prompt_;
    Lines buttons_;
    Lines given_;
    std::set<std::string> covered_;
};

}  // namespace brisel::tests
