// Log lines and alerts for failed unmounts and mounts.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// Log format for any dissenter status; its placeholder takes the disk's BSD name.
std::string_view dissenterStatusMessage(std::uint32_t status);

/// Sets the error icon, logs the dissenter if there is one, shows an alert, ends the busy state and
/// refreshes the menu. Main thread; blocks while the alert is up.
void reportUnmountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description);

/// Removes the volume's record, sets the error icon, logs the dissenter if there is one, shows an
/// alert, ends the busy state and refreshes the menu. Main thread; blocks while the alert is up.
void reportRemountFailure(NTFSVolumeManager& manager,
                          const std::optional<platform::Dissenter>& dissenter,
                          const platform::DiskDescription& description);

}  // namespace brisel
