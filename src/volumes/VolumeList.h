// The ordered list of volume records: finding and removing.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "volumes/NTFSVolume.h"

namespace brisel {

/// In order of discovery; new records go to the end.
using VolumeList = std::vector<std::shared_ptr<NTFSVolume>>;

/// The first record with this device node, or null.
std::shared_ptr<NTFSVolume> findVolume(const VolumeList& volumes,
                                       const std::optional<std::string>& deviceNode);

/// Removes that very object, wherever it stands; equal records stay.
void removeVolume(VolumeList& volumes, const NTFSVolume& volume);

/// Removes the first record with this device node, if there is one.
void removeFirstVolume(VolumeList& volumes, const std::string& deviceNode);

}  // namespace brisel
