// What the volume manager asks of the application.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel {

/// Called on the main thread.
class NTFSVolumeManagerDelegate {
  public:
    virtual ~NTFSVolumeManagerDelegate() = default;

    /// Rebuilds the status menu from the manager's volumes and its busy flag. It must not change
    /// the list of volumes.
    virtual void refreshVolumes() = 0;
    /// Switches the status icon to its error state.
    virtual void errorIcon() = 0;
};

}  // namespace brisel
