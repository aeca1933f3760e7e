// The program on a simulated Mac without a transcript.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "app/AppDelegate.h"
#include "platform/simulated/Mac.h"

namespace brisel::benchmarks {

/// Presses the first button of every alert and passes every password prompt.
class AgreeablePerson final : public platform::simulated::Person {
  public:
    int answerAlert(const platform::AlertContent& /*alert*/) override { return 0; }
    platform::OSStatus answerPasswordPrompt(const std::string& /*right*/) override {
        return platform::errAuthorizationSuccess;
    }
};

/// Does nothing, which excludes the simulated status item's cost.
class SilentStatusItem final : public platform::StatusItem {
  public:
    void create(double /*length*/) override {}
    void showStatusMenu() override {}
    void setImage(const std::optional<std::string>& /*name*/) override {}
    [[nodiscard]] std::string effectiveAppearanceName() const override {
        return "NSAppearanceNameAqua";
    }
    [[nodiscard]] platform::Subscription observeEffectiveAppearance(
        std::function<void()> /*changed*/) override {
        return {};
    }
};

/// What setting the status image does.
enum class Icon {
    /// Writes the rebuilt menu's titles to the transcript, as every simulated Mac does.
    TellsTheMenu,
    /// Nothing; leaves the cost of the program and the menu.
    TellsNothing
};

enum class Volumes { ReadOnly, Writable };

class BenchmarkProgram {
  public:
    /// Starts the program with a full automount list that contains none of the volumes.
    explicit BenchmarkProgram(Icon icon = Icon::TellsTheMenu);
    BenchmarkProgram(const BenchmarkProgram&) = delete;
    BenchmarkProgram& operator=(const BenchmarkProgram&) = delete;
    ~BenchmarkProgram() = default;

    [[nodiscard]] platform::simulated::Mac& mac() { return mac_; }
    [[nodiscard]] NTFSVolumeManager& manager() { return manager_; }

    /// Attaches a mounted NTFS disk with a UUID and runs the main loop until idle.
    void attach(int number, Volumes kind);
    /// Attaches disks 0 to `count` - 1, then rebuilds the menu.
    void fill(int count, Volumes kind);
    void detach(int number);
    /// Chooses the first menu item with this action, which must exist, and runs the main loop until
    /// idle.
    void choose(std::string_view action);

  private:
    void appear(int number, Volumes kind);
    void turn() { mac_.mainLoop.turnUntilIdle(); }

    AgreeablePerson person_;
    SilentStatusItem silentStatusItem_;
    platform::simulated::Mac mac_{person_};
    platform::Platform platform_;
    NTFSVolumeManager manager_;
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::benchmarks
