// The application: start-up, the status menu and icon, start at login, and the end.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/Platform.h"
#include "platform/Subscription.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

/// The bundle identifier of the application that is started at login in place of Brisel itself.
inline constexpr const char* LoginHelperIdentifier = "org.brisel.BriselHelper";

/// The key path under which a change of the status button's appearance is told.
inline constexpr std::string_view EffectiveAppearanceKeyPath = "effectiveAppearance";

/// Main thread only. The status item, its menu and the start-at-login item are services of the
/// platform and live as long as it. Made and connected by whatever loads the interface: a nib on a
/// Mac, elsewhere the program's entry.
class AppDelegate final : public NTFSVolumeManagerDelegate,
                          public std::enable_shared_from_this<AppDelegate> {
  public:
    /// Where the one volume manager comes from; asked once, in `awakeFromNib`.
    using VolumeManagerSource = std::function<NTFSVolumeManager&()>;

    /// Registers the default preferences; to be called before there is any instance.
    static void initialize(const platform::Platform& platform);

    explicit AppDelegate(const platform::Platform& platform,
                         VolumeManagerSource sharedManager = &NTFSVolumeManager::sharedInstance);

    /// Starts the program up. Returns early when the user refuses the warning notice: then the
    /// application has been asked to terminate.
    void awakeFromNib();
    /// Writes the preferences and stops observing the appearance. Also right before start-up is
    /// complete.
    void applicationWillTerminate();

    // Actions of the fixed menu items.
    /// Brings the program to the front and shows what it is.
    void bringToFront();
    /// Adds or removes the login item, and stores the choice if the platform agreed; else says so.
    void toggleStartAtLogin();

    void refreshVolumes() override;
    void errorIcon() override;
    /// Shows the image for the present state and appearance.
    void refreshIcon();
    /// What was observed has changed; only the appearance matters.
    void observeValueForKeyPath(std::string_view keyPath);

    /// The states of the icon, in the order of their codes.
    enum class StatusIcon { NoVolumes, ReadOnly, Writable, InProgress, Error };

    [[nodiscard]] StatusIcon statusIcon() const { return statusIcon_; }
    /// Any value may be set; one that is no state shows as grey.
    void setStatusIcon(StatusIcon state) { statusIcon_ = state; }

  private:
    enum class Answer { Accepted, Refused };
    [[nodiscard]] Answer showWarningNotice();

    const platform::Platform platform_;
    const VolumeManagerSource sharedManager_;
    NTFSVolumeManager* volumeManager_ = nullptr;
    platform::Subscription appearanceObservation_;
    StatusIcon statusIcon_ = StatusIcon::NoVolumes;
    bool shouldStartAtLogin_ = false;
    /// As read at start; accepting the notice changes the stored preference only.
    bool showDisclaimer_ = false;
};

}  // namespace brisel
