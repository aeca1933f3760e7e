// Starts and drives the program for a benchmark.
// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkProgram.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <vector>

#include "app/MainMenu.h"
#include "tests/support/PlatformWith.h"

namespace brisel::benchmarks {

namespace {

constexpr int FullList = 128;
constexpr int FirstListed = 900000;

std::string device(int number) {
    return "disk" + std::to_string(number) + "s1";
}

// 36 characters; the last six are the number.
std::string uuid(int number) {
    constexpr std::size_t Digits = 6;
    const auto digits = std::to_string(number);
    return "0F1E2D3C-4B5A-6978-8796-A5B4C3" + std::string(Digits - digits.size(), '0') + digits;
}

platform::UserDefaults::StringArray fullAutomountList() {
    std::vector<std::string> uuids;
    for (int number = 0; number < FullList; ++number)
        uuids.push_back(uuid(FirstListed + number));
    return std::make_shared<const std::vector<std::string>>(std::move(uuids));
}

platform::Platform prepared(platform::simulated::Mac& mac, platform::StatusItem& statusItem) {
    mac.transcript.keepNothing();
    mac.userDefaults.store("showDisclaimer", false);
    mac.userDefaults.store("volumeList", fullAutomountList());
    return tests::platformWith(mac.platform, {.statusItem = &statusItem});
}

}  // namespace

BenchmarkProgram::BenchmarkProgram(Icon icon)
    : platform_(icon == Icon::TellsNothing ? prepared(mac_, silentStatusItem_)
                                           : prepared(mac_, mac_.statusItem)),
      manager_(platform_),
      delegate_(std::make_shared<AppDelegate>(
          platform_, [this]() -> NTFSVolumeManager& { return manager_; })) {
    AppDelegate::initialize(platform_);
    mac_.statusMenu.load(mainMenuItems(delegate_, platform_));
    delegate_->awakeFromNib();
    turn();
}

void BenchmarkProgram::appear(int number, Volumes kind) {
    const auto name = "Volume " + std::to_string(number);
    platform::simulated::DiskArbitration::Properties properties;
    properties.description.volumeMountable = true;
    properties.description.volumeKind = "ntfs";
    properties.description.volumeName = name;
    properties.description.volumePath.emplace("/Volumes/" + name);
    properties.description.volumeUUID = uuid(number);
    properties.writable = kind == Volumes::Writable;
    mac_.diskArbitration.attach(device(number), std::move(properties));
}

void BenchmarkProgram::attach(int number, Volumes kind) {
    appear(number, kind);
    turn();
}

// Sets the busy flag meanwhile: a busy menu lists no volumes, so each rebuild is cheap.
void BenchmarkProgram::fill(int count, Volumes kind) {
    manager_.setInProgress(true);
    for (int number = 0; number < count; ++number)
        attach(number, kind);
    manager_.setInProgress(false);
    manager_.refreshVolumes();
}

void BenchmarkProgram::detach(int number) {
    mac_.diskArbitration.detach(device(number));
    turn();
}

void BenchmarkProgram::choose(std::string_view action) {
    const auto& items = mac_.statusMenu.items();
    const auto found = std::find_if(items.begin(), items.end(),
                                    [action](const auto& item) { return item.action == action; });
    if (found == items.end()) std::abort();
    platform::common::choose(*found);
    turn();
}

}  // namespace brisel::benchmarks
