// Delegate of the volume manager: refreshes the menu and the icon.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel {

/// Called on the main thread.
class NTFSVolumeManagerDelegate {
  public:
    virtual ~NTFSVolumeManagerDelegate() = default;

    /// Rebuilds the status menu. Must not change the manager's volumes.
    virtual void refreshVolumes() = 0;
    /// Shows the error icon.
    virtual void errorIcon() = 0;
};

}  // namespace brisel
