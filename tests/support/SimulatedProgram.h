// The program on a simulated Mac, with answers given beforehand to whatever blocks it.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/simulated/Mac.h"
#include "simulator/DirectProgram.h"

namespace brisel::tests {

/// The fixed items as they stand at the end of every `menu:` line.
inline constexpr const char* FixedItems = "Start at Login | About Brisel | --- | Quit Brisel";

using DiskProperties = platform::simulated::DiskArbitration::Properties;

/// A mountable, read-only NTFS disk mounted at /Volumes/NAME.
DiskProperties ntfsDisk(const std::string& name, const std::string& volumeUUID = "");

/// A menu item that stands for this record, as an action's sender.
platform::MenuItem senderFor(const std::shared_ptr<NTFSVolume>& volume);

/// Changes the description that the record keeps.
template <typename Change>
void changeDiskData(NTFSVolume& volume, const Change& change) {
    auto data = volume.diskData();
    change(data);
    volume.setDiskData(std::move(data));
}

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
    simulator::DirectProgram program{mac};

    /// Starts the program with the warning notice accepted before, and turns the main loop.
    void start();
    [[nodiscard]] NTFSVolumeManager& manager() { return *program.manager(); }

    /// A mountable, read-only NTFS disk mounted at /Volumes/NAME; reported when the loop turns.
    void attachNTFS(const std::string& device, const std::string& name,
                    const std::string& volumeUUID = "");
    /// Has it reported at once, and forgets the lines up to here.
    void attachQuietly(const std::string& device, const std::string& name,
                       const std::string& volumeUUID = "");
    void turn() { mac.mainLoop.turnUntilIdle(); }
    /// Chooses the first menu item of this title, and turns the main loop.
    void choose(const std::string& title);
    /// The user's response to the prompt for this device; turns the main loop.
    void respond(const std::string& action, const std::string& device);

    /// The record at this place of the list.
    [[nodiscard]] std::shared_ptr<NTFSVolume> volume(std::size_t index = 0);
    /// `TITLE | TITLE | ---` from the top.
    [[nodiscard]] std::string menuTitles() const;
    [[nodiscard]] std::vector<std::string> labels();
    [[nodiscard]] std::vector<std::string> devices();

    /// The transcript lines since this was asked last.
    [[nodiscard]] std::vector<std::string> newLines();
    void forgetLines() { linesSeen_ = mac.transcript.lines().size(); }
    /// Those of them that begin with `log: `, without it.
    [[nodiscard]] std::vector<std::string> newLogLines();

  private:
    std::size_t linesSeen_ = 0;
};

}  // namespace brisel::tests
