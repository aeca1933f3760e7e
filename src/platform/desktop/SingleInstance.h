// Single instance per session; a second launch activates the first.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>

#include "platform/desktop/ActivationToken.h"
#include "platform/headless/GLibOwners.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Owns Brisel's name on the session bus and answers `Activate` of org.freedesktop.Application
/// (Desktop Entry Specification).
class SingleInstance {
  public:
    enum class Place { First, Second, Unknown };

    /// Requests the name. `bus` and `activationToken` must outlive this object. Each launch gives
    /// the first instance its token.
    SingleInstance(GDBusConnection* bus, ActivationToken& activationToken);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// First if this process owns the name, Second if another does, Unknown if the request failed.
    [[nodiscard]] Place place() const { return place_; }
    /// Calls Activate on the name's owner. False on an error reply. True after a timeout of 5
    /// seconds, because a busy owner handles the call later.
    [[nodiscard]] bool activateFirst() const;
    /// Calls `activated` for each further launch, on the creating thread's main loop; at once if
    /// there were launches before.
    void listen(std::function<void()> activated);

  private:
    [[nodiscard]] guint exportObject();
    void noteStart(GVariant* arguments);

    GDBusConnection* bus_;
    ActivationToken& activationToken_;
    std::function<void()> activated_;
    bool startedMeanwhile_ = false;
    guint object_;
    Place place_;
};

}  // namespace brisel::platform::desktop
