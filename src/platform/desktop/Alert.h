// Modal alerts, shown by brisel-dialog.
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <utility>

#include "platform/Alert.h"
#include "platform/desktop/DialogProcess.h"
#include "platform/desktop/MainThreadQueue.h"
#include "platform/desktop/NotificationServer.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Runs the MainThreadQueue's work while it waits. If no window appears, logs the text and shows it
/// as a critical notification. Without an answer, an alert with one button returns that button; one
/// with several returns -1.
class Alert final : public platform::Alert {
  public:
    /// Generous even for slow machines.
    static constexpr std::chrono::seconds UsualPatience{10};

    /// The references must outlive the alert. Once the descriptor `terminationSignals` is readable,
    /// alerts end unanswered.
    struct Dependencies {
        platform::SystemLog& log;
        MainThreadQueue& mainThread;
        NotificationServer& notifications;
        int terminationSignals;
        DialogProgram dialog;
        /// How long a window may take to appear.
        std::chrono::milliseconds patience = UsualPatience;
    };

    explicit Alert(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

    int runModal(const AlertContent& content) override;

  private:
    enum class Waiting { Ended, Interrupted };

    /// Waits up to `patience` for the window, then without limit for an answer.
    [[nodiscard]] Waiting waitFor(DialogProcess& window) const;
    void logAndNotify(const AlertContent& content) const;

    Dependencies dependencies_;
};

}  // namespace brisel::platform::desktop
