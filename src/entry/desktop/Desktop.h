// Brisel on a Linux desktop: the platform it runs on.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <memory>
#include <string>

#include "app/AppDelegate.h"
#include "entry/desktop/Services.h"

namespace brisel::desktop {

class Desktop {
  public:
    /// `bus` is the session's.
    explicit Desktop(GDBusConnection* bus);
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    ~Desktop();

    /// Starts the program and runs it until it terminates, or lets the one show its menu that runs
    /// already. Returns the exit status.
    int run();

  private:
    void runFirst();
    void watchPrompts();
    void withdrawPromptsSoon();
    void endPrompts();
    void announceUnmounted(const NTFSVolume& volume);

    GDBusConnection* bus_;
    Services services_;
    platform::Subscription menuChanges_;
    platform::Subscription withdrawal_;
    platform::Subscription clicksOnPrompts_;
    platform::Subscription unmounts_;
    std::shared_ptr<AppDelegate> delegate_;
};

}  // namespace brisel::desktop
