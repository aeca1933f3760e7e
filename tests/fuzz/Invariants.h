// What holds of the program whatever its surroundings do.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/simulated/Mac.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::tests {

/// Aborts, after a line on standard error, where two records have one device or a fixed item of
/// the menu has gone.
void checkInvariants(const NTFSVolumeManager& manager, const platform::simulated::Mac& mac);

}  // namespace brisel::tests
