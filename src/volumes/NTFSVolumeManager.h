// The one object that knows which NTFS volumes are attached and carries out what is done to them.
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>

#include "platform/FileURL.h"
#include "platform/Platform.h"
#include "platform/Subscription.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolumeManagerDelegate.h"
#include "volumes/VolumeList.h"

namespace brisel::platform {
struct MenuItem;
}

namespace brisel {

/// Main thread only, but for `sharedInstance` and reading the busy flag. The session with the
/// platform's disk service, and whatever memory it takes, is the service's own. Each operation is
/// defined in the folder whose matter it is; none returns a result: what comes of it reaches the
/// user through the delegate, alerts and the log.
class NTFSVolumeManager {
  public:
    /// The program's one manager, made on the first call on the installed platform. Any thread may
    /// call; when first calls race, one manager is made and all get it.
    static NTFSVolumeManager& sharedInstance();

    /// Opens the disk-arbitration session, asks for reports of disks, and registers the category
    /// of the remount prompt. Disks that are there already are reported like later ones.
    explicit NTFSVolumeManager(const platform::Platform& platform);
    NTFSVolumeManager(const NTFSVolumeManager&) = delete;
    NTFSVolumeManager& operator=(const NTFSVolumeManager&) = delete;
    ~NTFSVolumeManager() = default;

    /// The records of the known volumes, shared by all that act on them.
    [[nodiscard]] VolumeList& volumes() { return volumes_; }
    [[nodiscard]] const VolumeList& volumes() const { return volumes_; }
    /// A remount, an unmount or a clean-up is running. Advisory: nothing refuses a second one.
    [[nodiscard]] bool inProgress() const { return inProgress_; }
    void setInProgress(bool inProgress) { inProgress_ = inProgress; }
    /// The manager does not keep its delegate alive; once it is gone, telling it does nothing.
    void setDelegate(std::weak_ptr<NTFSVolumeManagerDelegate> delegate);

    [[nodiscard]] const platform::Platform& platform() const { return platform_; }

    /// Hands on to the delegate.
    void refreshVolumes() const;
    void errorIcon() const;

    // mounting/Remount.cpp
    /// Remounts the sender's volume read-write.
    void remountVolume(const platform::MenuItem& sender);
    /// Remounts the first volume with this BSD name; where there is none, says so in an alert.
    void remountVolumeNamed(const std::optional<std::string>& name);
    /// Starts the remount of a volume, or says in an alert that there is no disk for it.
    void goAhead(const std::shared_ptr<NTFSVolume>& volume);

    // mounting/Unmount.cpp
    /// Unmounts the sender's volume without force; where no disk is mounted there, only the log
    /// tells.
    void unmountVolume(const platform::MenuItem& sender);

    // mounting/Finder.cpp
    /// Opens the sender's volume in the file browser.
    void showInFinder(const platform::MenuItem& sender);
    /// Opens a folder in the file browser, none opens nothing; ends the busy state.
    void openInFinder(const std::optional<platform::FileURL>& url);
    /// Removes all extended attributes from the sender's volume; blocks until that is done.
    void cleanupFinderInfo(const platform::MenuItem& sender);

    // volumes/AutomountActions.cpp
    /// Puts the volume's UUID on the automount list; a volume without one gets a line in the log.
    void saveVolumeForAutomount(const platform::MenuItem& sender);
    /// Takes it off again.
    void unsaveVolumeForAutomount(const platform::MenuItem& sender);
    /// Drops the record of an unmounted volume and its emptied mount point. Despite its name it
    /// leaves the automount list alone.
    void removeVolumeFromList(const std::shared_ptr<NTFSVolume>& volume);

    // app/RemountPrompt.cpp
    /// Tells the center of the prompt's two buttons, and takes the user's responses.
    void registerNotificationCategory();
    /// Starts the remount when the user pressed the prompt's affirmative button.
    void userNotificationCenterDidReceiveNotificationResponse(
        const platform::NotificationResponse& response,
        const platform::UserNotificationCenter::CompletionHandler& completionHandler);

  private:
    const platform::Platform platform_;
    VolumeList volumes_;
    std::weak_ptr<NTFSVolumeManagerDelegate> delegate_;
    std::atomic<bool> inProgress_ = false;
    platform::Subscription appeared_;
    platform::Subscription disappeared_;
    platform::Subscription responses_;
};

/// The record that a menu item carries, or null.
std::shared_ptr<NTFSVolume> volumeOf(const platform::MenuItem& item);

}  // namespace brisel
