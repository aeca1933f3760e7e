// One program a session: a second start turns to the first.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>

#include "platform/headless/GLibOwners.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// The well-known name of the program on the session bus, with the interface
/// org.freedesktop.Application (Desktop Entry Specification) of which it answers `Activate`.
class SingleInstance {
  public:
    enum class Place { First, Second, Unknown };

    /// Takes the name, if nobody has it. `bus` must outlive this.
    explicit SingleInstance(GDBusConnection* bus);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Whether this program has the name, or another one, or the bus would not say.
    [[nodiscard]] Place place() const { return place_; }
    /// Tells the program that has the name that it was started again; false if it refuses. One that
    /// is busy for some seconds will hear of it later.
    [[nodiscard]] bool activateFirst() const;
    /// From now on calls `activated`, on the loop of the thread that made this, for every other
    /// start; at once for those so far.
    void listen(std::function<void()> activated);

  private:
    [[nodiscard]] guint exportObject();
    void noteStart();

    GDBusConnection* bus_;
    std::function<void()> activated_;
    bool startedMeanwhile_ = false;
    guint object_;
    Place place_;
};

}  // namespace brisel::platform::desktop
