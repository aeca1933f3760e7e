// Whether the desktop is set to light or dark, as its Settings portal says.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/desktop/BusClient.h"

namespace brisel::platform::desktop {

/// To be made, used and destroyed on the thread that turns GLib's default context. Light as long as
/// nobody says otherwise.
class ColourScheme {
  public:
    enum class Scheme { Light, Dark };

    /// `changed` gets every scheme that is not the one before.
    ColourScheme(GDBusConnection* bus, std::function<void(Scheme)> changed);

  private:
    void ask();
    void take(GVariant* value);

    std::function<void(Scheme)> changed_;
    Scheme scheme_ = Scheme::Light;
    BusClient portal_;
    Subscription changes_;
    Subscription watching_;
};

}  // namespace brisel::platform::desktop
