// The volume manager: the known NTFS volumes, the disk-arbitration session and every operation.
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/FileURL.h"
#include "platform/Platform.h"
#include "platform/Subscription.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolumeManagerDelegate.h"
#include "volumes/VolumeRecords.h"

namespace brisel::platform {
struct MenuItem;
}

namespace brisel {

/// Main thread only, except for `sharedInstance` and `inProgress`. Each operation is defined in the
/// folder of its feature. None returns a result: outcomes reach the user through the delegate,
/// alerts and the log.
class NTFSVolumeManager {
  public:
    /// The shared manager, made on the installed platform by the first call and never destroyed.
    /// Any thread; racing first calls get one manager.
    static NTFSVolumeManager& sharedInstance();

    /// Opens the disk-arbitration session, registers the disk callbacks and the category of the
    /// remount prompt. Disks that are already attached are reported like later ones.
    explicit NTFSVolumeManager(const platform::Platform& platform);
    NTFSVolumeManager(const NTFSVolumeManager&) = delete;
    NTFSVolumeManager& operator=(const NTFSVolumeManager&) = delete;
    ~NTFSVolumeManager() = default;

    /// The records of the known volumes, in order of discovery. Callers add and remove records.
    [[nodiscard]] VolumeRecords& volumes() { return volumes_; }
    [[nodiscard]] const VolumeRecords& volumes() const { return volumes_; }
    void setVolumes(VolumeRecords volumes) { volumes_ = std::move(volumes); }
    /// True while a remount, an unmount or a clean-up runs. Advisory: a second one is not refused.
    /// Any thread may read it.
    [[nodiscard]] bool inProgress() const { return inProgress_; }
    void setInProgress(bool inProgress) { inProgress_ = inProgress; }
    /// Held weakly. Null once the delegate is gone; calls to it are then no-ops.
    [[nodiscard]] std::shared_ptr<NTFSVolumeManagerDelegate> delegate() const {
        return delegate_.lock();
    }
    void setDelegate(std::weak_ptr<NTFSVolumeManagerDelegate> delegate);

    [[nodiscard]] const platform::Platform& platform() const { return platform_; }

    /// Calls the delegate.
    void refreshVolumes() const;
    void errorIcon() const;

    // mounting/Remount.cpp
    /// Remounts the sender's volume read-write.
    void remountVolume(const platform::MenuItem& sender);
    /// Remounts the first volume with this BSD name. Shows an alert if there is none.
    void remountVolumeNamed(const std::optional<std::string>& name);
    /// Starts the remount of a volume. Shows an alert if no disk can be made for it.
    void goAhead(const std::shared_ptr<NTFSVolume>& volume);

    // mounting/Unmount.cpp
    /// Unmounts the sender's volume without force. Only logs if no disk is mounted at its path.
    void unmountVolume(const platform::MenuItem& sender);

    // mounting/Finder.cpp
    /// Opens the sender's volume in the file browser.
    void showInFinder(const platform::MenuItem& sender);
    /// Opens a folder in the file browser and clears `inProgress`. Absent opens nothing.
    void openInFinder(const std::optional<platform::FileURL>& url);
    /// Removes all extended attributes from the sender's volume. Blocks until done.
    void cleanupFinderInfo(const platform::MenuItem& sender);

    // volumes/AutomountActions.cpp
    /// Adds the sender's volume to the automount list. Only logs if the volume has no UUID.
    void saveVolumeForAutomount(const platform::MenuItem& sender);
    /// Removes the sender's volume from the automount list. Only logs if it has no UUID.
    void unsaveVolumeForAutomount(const platform::MenuItem& sender);
    /// Removes the record of an unmounted volume and its empty mount point. Does not change the
    /// automount list.
    void removeVolumeFromList(const std::shared_ptr<NTFSVolume>& volume);

    // app/RemountPrompt.cpp
    /// Registers the prompt's two buttons and the handler of the user's response.
    void registerNotificationCategory();
    /// Starts the remount if the response is the prompt's affirmative button.
    void userNotificationCenterDidReceiveNotificationResponseWithCompletionHandler(
        const platform::NotificationResponse& response,
        const platform::UserNotificationCenter::CompletionHandler& completionHandler);

  private:
    const platform::Platform platform_;
    VolumeRecords volumes_;
    std::weak_ptr<NTFSVolumeManagerDelegate> delegate_;
    std::atomic<bool> inProgress_ = false;
    platform::Subscription appeared_;
    platform::Subscription disappeared_;
    platform::Subscription responses_;
};

/// The item's represented object as a record; null if it is none.
std::shared_ptr<NTFSVolume> volumeOf(const platform::MenuItem& item);

}  // namespace brisel
