// Fuzz target: disks with any descriptions come and go while the menu is used.
// SPDX-License-Identifier: MIT
#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <iostream>

#include "platform/simulated/ProgramEnded.h"
#include "simulator/DirectProgram.h"
#include "tests/fuzz/Must.h"
#include "tests/rules/ListRule.h"
#include "tests/rules/ScreenRules.h"
#include "volumes/DiskEvents.h"

namespace {

using namespace brisel;

constexpr std::size_t MostSteps = 48;
constexpr std::size_t LongestText = 24;

/// Presses any button and mostly cancels the password prompt: each tool that runs is a real child
/// process.
class RandomPerson final : public platform::simulated::Person {
  public:
    explicit RandomPerson(FuzzedDataProvider& input) : input_(input) {}

    int answerAlert(const platform::AlertContent& alert) override {
        return input_.ConsumeIntegralInRange(0, static_cast<int>(alert.buttons.size()) - 1);
    }

    platform::OSStatus answerPasswordPrompt(const std::string& /*right*/) override {
        constexpr std::array Answers{platform::errAuthorizationCanceled,
                                     platform::errAuthorizationDenied,
                                     platform::errAuthorizationInternal};
        const bool granted = tools_ < MostTools && input_.ConsumeProbability<float>() > 0.5F;
        if (!granted) return input_.PickValueInArray(Answers);
        ++tools_;
        return platform::errAuthorizationSuccess;
    }

  private:
    static constexpr int MostTools = 3;

    FuzzedDataProvider& input_;
    int tools_ = 0;
};

/// The program on a simulated Mac whose every turn comes from the input.
class Session {
  public:
    explicit Session(FuzzedDataProvider& input) : input_(input), person_(input) {
        mac_.transcript.keepNothing();
        mac_.transcript.setListener([this](const std::string& line) {
            for (const auto& rule : rules_)
                rule->hear(line);
        });
        mac_.systemVersion.setMacOS12OrLater(input_.ConsumeBool());
        mac_.userDefaults.store("showDisclaimer", false);
    }

    void run() {
        program_.start();
        for (std::size_t left = MostSteps; left > 0 && input_.remaining_bytes() > 0; --left) {
            step();
            mac_.mainLoop.turnUntilIdle();
            for (const auto& rule : rules_)
                rule->rest(false);
        }
    }

  private:
    using Step = void (Session::*)();

    [[nodiscard]] NTFSVolumeManager& manager() { return *program_.manager(); }

    void step() {
        constexpr std::array Steps{
            &Session::attach, &Session::detach,         &Session::change,
            &Session::report, &Session::reportAnything, &Session::loseAnything,
            &Session::choose, &Session::chooseAgain,    &Session::refresh};
        (this->*input_.PickValueInArray(Steps))();
    }

    std::string device() {
        static const std::array<std::string, 4> devices{"disk4s1", "disk5s1", "disk6s1", ""};
        return input_.PickValueInArray(devices);
    }

    std::optional<std::string> text() {
        if (input_.ConsumeBool()) return std::nullopt;
        return input_.ConsumeRandomLengthString(LongestText);
    }

    // Any text, but often one under which the program goes on.
    std::optional<std::string> kind() {
        static const std::array<std::string, 4> kinds{"ntfs", "NTFS", "ufsd_NTFS", "hfs"};
        return input_.ConsumeBool() ? input_.PickValueInArray(kinds) : text();
    }

    platform::DiskDescription description() {
        platform::DiskDescription made;
        if (input_.ConsumeBool()) made.volumeMountable = input_.ConsumeBool();
        made.volumeKind = kind();
        made.volumeName = text();
        made.mediaBSDName = input_.ConsumeBool() ? device() : text();
        if (const auto path = text()) made.volumePath.emplace(*path);
        made.mediaUUID = text();
        made.volumeUUID = text();
        return made;
    }

    platform::simulated::DiskArbitration::Properties properties() {
        return {.description = description(), .writable = input_.ConsumeBool()};
    }

    void attach() {
        const auto name = device();
        if (!mac_.diskArbitration.isAttached(name)) mac_.diskArbitration.attach(name, properties());
    }

    void detach() {
        const auto name = device();
        if (mac_.diskArbitration.isAttached(name)) mac_.diskArbitration.detach(name);
    }

    void change() {
        const auto name = device();
        if (mac_.diskArbitration.isAttached(name)) mac_.diskArbitration.change(name, properties());
    }

    void report() {
        const auto name = device();
        if (mac_.diskArbitration.isAttached(name)) mac_.diskArbitration.report(name);
    }

    void reportAnything() {
        const auto name = device();
        diskAppeared(manager(), {.bsdName = name}, description());
    }

    void loseAnything() {
        const auto name = device();
        diskDisappeared(manager(), {.bsdName = name}, description());
    }

    void choose() {
        const auto& items = mac_.statusMenu.items();
        const auto index = input_.ConsumeIntegralInRange<std::size_t>(0, items.size() - 1);
        if (!items[index].target) return;
        lastChosen_ = items[index];
        chooseAgain();
    }

    // An item of a menu that was rebuilt meanwhile, for a record that may be gone.
    void chooseAgain() { platform::common::choose(lastChosen_); }

    void refresh() { manager().refreshVolumes(); }

    FuzzedDataProvider& input_;
    RandomPerson person_;
    platform::simulated::Mac mac_{person_};
    simulator::DirectProgram program_{mac_};
    tests::Rules rules_ = tests::makeRules<tests::DeviceRule, tests::MenuRule>(
        mac_, program_, [](const std::string& sentence) {
            std::cerr << sentence << '\n';
            tests::must(false);
        });
    platform::MenuItem lastChosen_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    Session session(input);
    try {
        session.run();
    } catch (const platform::simulated::ProgramEnded&) {
        // The item Quit was chosen.
    }
    return 0;
}
