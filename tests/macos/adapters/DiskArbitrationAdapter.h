// Fixture of the Disk Arbitration adapter.
// SPDX-License-Identifier: MIT
#pragma once

#import "platform/macos/DiskArbitration.h"
#import "tests/macos/adapters/AdapterTest.h"
#import "tests/macos/frameworks/DiskArbitration.h"

namespace brisel::tests::macos {

class DiskArbitrationAdapter : public AdapterTest {
  protected:
    ~DiskArbitrationAdapter() override {
        appeared.reset();
        disappeared.reset();
        // The real session stays scheduled until the process exits.
        resetDiskArbitration();
    }

    platform::macos::DiskArbitration adapter;
    platform::Subscription appeared;
    platform::Subscription disappeared;
    /// `+ DEVICE` or `- DEVICE` for each report.
    std::vector<std::string> reports;
    platform::DiskDescription lastDescription;
    /// The disk and the status of each completion.
    std::vector<std::string> completed;
    std::vector<std::optional<std::uint32_t>> statuses;

    void registerCallbacks() {
        appeared = adapter.registerDiskAppearedCallback(
            [this](const platform::Disk& disk, const auto& description) {
                reports.push_back("+ " + disk.bsdName);
                lastDescription = description;
            });
        disappeared = adapter.registerDiskDisappearedCallback(
            [this](const platform::Disk& disk, const auto&) {
                reports.push_back("- " + disk.bsdName);
            });
    }
    void start() {
        adapter.createSession();
        registerCallbacks();
        adapter.scheduleWithRunLoop();
    }
    static void deliver() {
        while (deliverDiskEvents(NSDefaultRunLoopMode)) {
        }
    }

    platform::DiskArbitration::Completion noted() {
        return [this](const platform::Disk& disk, const auto& dissenter) {
            completed.push_back(disk.bsdName);
            statuses.push_back(dissenter ? std::optional(dissenter->status) : std::nullopt);
        };
    }
    void unmount(const std::string& device) { adapter.unmount({.bsdName = device}, noted()); }
    void mount(const std::string& device, const std::vector<std::string>& arguments = {}) {
        adapter.mountWithArguments({.bsdName = device}, arguments, noted());
    }
    platform::DiskDescription description(const std::string& device) {
        return adapter.copyDescription({.bsdName = device});
    }

    void attach(const std::string& device) { mac.diskArbitration.attach(device, ntfsDisk("Data")); }
    /// Attaches an unmounted disk.
    void attachUnmounted(const std::string& device) {
        auto disk = ntfsDisk("Data");
        disk.description.volumePath.reset();
        mac.diskArbitration.attach(device, disk);
    }
};

}  // namespace brisel::tests::macos
