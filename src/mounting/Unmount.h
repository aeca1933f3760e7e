// The completion of an unmount that the user asked for.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// Drops the unmounted volume from the list, or reports the refusal. Main thread.
void unmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                      const std::optional<platform::Dissenter>& dissenter);

}  // namespace brisel
