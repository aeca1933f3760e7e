// The desktop's light or dark colour scheme, from the Settings portal.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/desktop/BusClient.h"

namespace brisel::platform::desktop {

/// Use only on the thread that runs GLib's default context. Light until the portal answers.
class ColourScheme {
  public:
    enum class Scheme { Light, Dark };

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
