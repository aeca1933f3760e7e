// The fixture of most tests: the program has started and no disk is attached.
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

namespace brisel::tests {

inline constexpr const char* SomeUUID = "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0";
inline constexpr const char* OtherUUID = "11111111-2222-3333-4444-555555555555";

/// newLines() begins after the start.
class RunningProgram : public ::testing::Test, public SimulatedProgram {
  protected:
    void SetUp() override {
        start();
        forgetLines();
    }

    /// Stores the automount list directly in the user defaults, bypassing the program.
    void storeAutomountList(std::vector<std::string> uuids) {
        mac.userDefaults.store("volumeList",
                               std::make_shared<const std::vector<std::string>>(std::move(uuids)));
    }

    void attachWritable(const std::string& device, const std::string& name,
                        const std::string& volumeUUID = "") {
        auto disk = ntfsDisk(name, volumeUUID);
        disk.writable = true;
        mac.diskArbitration.attach(device, disk);
        turn();
        forgetLines();
    }

    /// Appends a record to the manager's list.
    std::shared_ptr<NTFSVolume> addRecord(const std::string& device,
                                          const std::string& label = "") {
        const auto record = NTFSVolume::initWithVolume({});
        record->setDeviceNode(device);
        record->setLabel(label);
        return manager().volumes().emplace_back(record);
    }

    /// The transcript line of a menu with these generated items.
    static std::string menuLine(const std::string& generated) {
        return "menu: " + generated + " | " + FixedItems;
    }
};

/// The transcript line of the menu during an operation.
inline std::string busyMenuLine() {
    return std::string("menu: Brisel is operating ... | --- | ") + FixedItems;
}

/// The transcript line of a menu without volumes.
inline std::string emptyMenuLine() {
    return std::string("menu: No NTFS Volumes to re-mount | --- | ") + FixedItems;
}

}  // namespace brisel::tests
