// Fixture for the simulated disks, without the program.
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {

class Disks : public testing::Test, public SimulatedProgram {
  protected:
    platform::simulated::DiskArbitration& disks = mac.diskArbitration;
    std::vector<std::string> heard;
    std::vector<platform::DiskDescription> reports;
    platform::Subscription appeared;
    platform::Subscription disappeared;

    void listen() {
        disks.createSession();
        appeared =
            disks.registerDiskAppearedCallback([this](const auto& disk, const auto& description) {
                heard.push_back("+" + disk.bsdName);
                reports.push_back(description);
            });
        disappeared = disks.registerDiskDisappearedCallback(
            [this](const auto& disk, const auto& description) {
                heard.push_back("-" + disk.bsdName);
                reports.push_back(description);
            });
        disks.scheduleWithRunLoop();
    }
    platform::Disk disk(const std::string& name) { return disks.diskFromBSDName(name).value(); }
    /// Status of the request: 0 if granted, -1 if it has not completed.
    long long unmount(const std::string& name) {
        long long status = -1;
        disks.unmount(disk(name), [&](const auto&, const auto& dissenter) {
            status = dissenter ? dissenter->status : 0;
        });
        turn();
        return status;
    }
    long long mount(const std::string& name) {
        long long status = -1;
        disks.mountWithArguments(disk(name), {"rw", "x"}, [&](const auto&, const auto& dissenter) {
            status = dissenter ? dissenter->status : 0;
        });
        turn();
        return status;
    }
    const DiskProperties& properties(const std::string& name) { return disks.properties(name); }
};

}  // namespace brisel::tests
