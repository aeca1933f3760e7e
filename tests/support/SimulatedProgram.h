// The program on a simulated Mac, with scripted answers to alerts and prompts.
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

/// The fixed items that end every `menu:` line.
inline constexpr const char* FixedItems = "Start at Login | About Brisel | --- | Quit Brisel";

using DiskProperties = platform::simulated::DiskArbitration::Properties;

/// A mountable, read-only NTFS disk mounted at /Volumes/NAME.
DiskProperties ntfsDisk(const std::string& name, const std::string& volumeUUID = "");

/// A menu item that represents `volume`, as the sender of an action.
platform::MenuItem senderFor(const std::shared_ptr<NTFSVolume>& volume);

/// Changes the description that the record keeps.
template <typename Change>
void changeDiskData(NTFSVolume& volume, const Change& change) {
    auto data = volume.diskData();
    change(data);
    volume.setDiskData(std::move(data));
}

/// Answers alerts and password prompts; by default with the first button and success.
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

    /// Starts the program with the warning notice already accepted; turns the main loop.
    void start();
    [[nodiscard]] NTFSVolumeManager& manager() { return *program.manager(); }

    /// Attaches ntfsDisk(name, volumeUUID); reported when the main loop turns.
    void attachNTFS(const std::string& device, const std::string& name,
                    const std::string& volumeUUID = "");
    /// attachNTFS(), then turns the main loop and forgets the transcript so far.
    void attachQuietly(const std::string& device, const std::string& name,
                       const std::string& volumeUUID = "");
    void turn() { mac.mainLoop.turnUntilIdle(); }
    /// Chooses the first item with this title, or fails the test; turns the main loop.
    void choose(const std::string& title);
    /// Responds to the remount prompt of `device`; turns the main loop.
    void respond(const std::string& action, const std::string& device);

    /// The record at `index` in the manager's list.
    [[nodiscard]] std::shared_ptr<NTFSVolume> volume(std::size_t index = 0);
    /// The titles from the top, joined by ` | `; a separator is `---`.
    [[nodiscard]] std::string menuTitles() const;
    [[nodiscard]] std::vector<std::string> labels();
    [[nodiscard]] std::vector<std::string> devices();

    /// The transcript lines since the last call.
    [[nodiscard]] std::vector<std::string> newLines();
    void forgetLines() { linesSeen_ = mac.transcript.lines().size(); }
    /// The new lines that begin with `log: `, without this prefix.
    [[nodiscard]] std::vector<std::string> newLogLines();

  private:
    std::size_t linesSeen_ = 0;
};

}  // namespace brisel::tests
