// The application delegate: start-up, status menu, status icon, start at login, termination.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "platform/Platform.h"
#include "platform/Subscription.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

/// Bundle identifier of the login-item helper, which starts Brisel.
inline constexpr const char* LoginHelperIdentifier = "org.brisel.BriselHelper";

/// Observed key path of the status button.
inline constexpr std::string_view EffectiveAppearanceKeyPath = "effectiveAppearance";

/// Main thread only. Must be owned by a shared_ptr: the volume manager keeps a weak reference.
/// Created by the nib's delegate on macOS, elsewhere by the program's entry point.
class AppDelegate final : public NTFSVolumeManagerDelegate,
                          public std::enable_shared_from_this<AppDelegate> {
  public:
    /// Called once, in `awakeFromNib`.
    using VolumeManagerSource = std::function<NTFSVolumeManager&()>;

    /// Registers the default preferences. Call before creating an instance.
    static void initialize(const platform::Platform& platform);

    explicit AppDelegate(const platform::Platform& platform,
                         VolumeManagerSource sharedManager = &NTFSVolumeManager::sharedInstance);

    /// Returns early, with termination requested, if the user refuses the warning notice.
    void awakeFromNib();
    /// Writes the preferences and ends the observation. Safe before start-up has finished.
    void applicationWillTerminate();

    // Actions of the fixed menu items.
    /// Activates the application and shows the About panel.
    void bringToFront();
    /// Adds or removes the login item. Stores the new state on success; shows an alert on failure.
    void toggleStartAtLogin();

    void refreshVolumes() override;
    void errorIcon() override;
    /// Shows no image if the bundle lacks the one for the current state and appearance.
    void refreshIcon();
    /// Ignores key paths other than EffectiveAppearanceKeyPath.
    void observeValueForKeyPath(std::string_view keyPath);

    /// Icon states; their order fixes the codes 0 to 4.
    enum class StatusIcon { NoVolumes, ReadOnly, Writable, InProgress, Error };

    [[nodiscard]] StatusIcon statusIcon() const { return statusIcon_; }
    /// A value outside the enumeration shows the grey icon.
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
    /// Read once at start; accepting the notice changes only the stored preference.
    bool showDisclaimer_ = false;
};

}  // namespace brisel
