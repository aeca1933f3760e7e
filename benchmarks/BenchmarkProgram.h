// The program on a simulated Mac that keeps no transcript.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "app/AppDelegate.h"
#include "platform/simulated/Mac.h"

namespace brisel::benchmarks {

/// Presses the first button of every alert and knows the password.
class AgreeablePerson final : public platform::simulated::Person {
  public:
    int answerAlert(const platform::AlertContent& /*alert*/) override { return 0; }
    platform::OSStatus answerPasswordPrompt(const std::string& /*right*/) override {
        return platform::errAuthorizationSuccess;
    }
};

/// A status item without the simulated Mac's own cost.
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

/// What an image on the status item leads to.
enum class Icon {
    /// As on every simulated Mac, the titles of a rebuilt menu are written to the transcript.
    TellsTheMenu,
    /// Nothing: what is left is the cost of the program and the menu.
    TellsNothing
};

enum class Volumes { ReadOnly, Writable };

class BenchmarkProgram {
  public:
    /// Starts the program, with an automount list at its limit that names none of the volumes.
    explicit BenchmarkProgram(Icon icon = Icon::TellsTheMenu);
    BenchmarkProgram(const BenchmarkProgram&) = delete;
    BenchmarkProgram& operator=(const BenchmarkProgram&) = delete;
    ~BenchmarkProgram() = default;

    [[nodiscard]] platform::simulated::Mac& mac() { return mac_; }
    [[nodiscard]] NTFSVolumeManager& manager() { return manager_; }

    /// A mounted NTFS disk with a UUID appears, and the main loop turns.
    void attach(int number, Volumes kind);
    /// Attaches disks from number 0 on, and turns once.
    void fill(int count, Volumes kind);
    void detach(int number);
    /// Chooses the first menu item with this action, and turns. There must be one.
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
