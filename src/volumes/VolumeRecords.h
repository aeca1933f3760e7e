// The ordered list of volume records.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "volumes/NTFSVolume.h"

namespace brisel {

/// In order of discovery. New records are appended.
using VolumeRecords = std::vector<std::shared_ptr<NTFSVolume>>;

/// The first record with this device node, or null.
std::shared_ptr<NTFSVolume> findVolume(const VolumeRecords& volumes,
                                       const std::optional<std::string>& deviceNode);

/// Removes this object. Other records with equal properties stay.
void removeVolume(VolumeRecords& volumes, const NTFSVolume& volume);

/// Removes the first record with this device node, if any.
void removeFirstVolume(VolumeRecords& volumes, const std::string& deviceNode);

}  // namespace brisel
