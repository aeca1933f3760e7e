// The program on a simulated Mac, with answers given beforehand to whatever blocks it.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/simulated/Mac.h"
#include "simulator/Program.h"

namespace brisel::tests {

/// Answers as told; unless told, presses the first button and knows the password.
class ScriptedPerson final : public platform::simulated::Person {
  public:
    std::function<int(const platform::AlertContent&)> whenAlertShows;
    std::function<platform::OSStatus()> whenPasswordIsAsked;
    std::vector<platform::AlertContent> alertsSeen;
    int passwordPromptsSeen = 0;

    int answerAlert(const platform::AlertContent& alert) override;
    platform::OSStatus answerPasswordPrompt(const std::string& right) override;
};

struct SimulatedProgram {
    SimulatedProgram() = default;
    SimulatedProgram(const SimulatedProgram&) = delete;
    SimulatedProgram& operator=(const SimulatedProgram&) = delete;
    ~SimulatedProgram() = default;

    ScriptedPerson person;
    platform::simulated::Mac mac{person};
    simulator::Program program{mac};

    /// Starts the program with the warning notice accepted before, and turns the main loop.
    void start();
    [[nodiscard]] NTFSVolumeManager& manager() { return *program.manager(); }

    /// A mountable, read-only NTFS disk mounted at /Volumes/NAME; reported when the loop turns.
    void attachNTFS(const std::string& device, const std::string& name,
                    const std::string& volumeUUID = "");
    void turn() { mac.mainLoop.turnUntilIdle(); }

    /// The transcript lines since this was asked last.
    [[nodiscard]] std::vector<std::string> newLines();
    /// Those of them that begin with `log: `, without it.
    [[nodiscard]] std::vector<std::string> newLogLines();

  private:
    std::size_t linesSeen_ = 0;
};

}  // namespace brisel::tests
