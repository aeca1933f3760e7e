// Checking what must hold of the program between any two events.
// SPDX-License-Identifier: MIT
#include "tests/fuzz/Invariants.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <set>

namespace brisel::tests {

namespace {

constexpr std::ptrdiff_t FixedItems = 4;

void require(bool holds, const char* what) {
    if (holds) return;
    std::cerr << what << '\n';
    std::abort();
}

}  // namespace

void checkInvariants(const NTFSVolumeManager& manager, const platform::simulated::Mac& mac) {
    std::set<std::optional<std::string>> devices;
    for (const auto& volume : manager.volumes())
        require(devices.insert(volume->deviceNode()).second, "two records have one device");
    const auto& items = mac.statusMenu.items();
    const auto fixed = std::count_if(items.begin(), items.end(),
                                     [](const platform::MenuItem& item) { return item.tag == 0; });
    require(fixed == FixedItems, "the menu has lost a fixed item");
}

}  // namespace brisel::tests
