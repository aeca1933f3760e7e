// Modal alerts in windows of the dialog program.
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

/// A window that does not come up, or goes without an answer, holds nothing up: the text goes to
/// the log and to a critical notification, and an alert with one button counts as answered by it.
/// Of several buttons none counts as pressed then.
class Alert final : public platform::Alert {
  public:
    /// A slow machine shows a window in less.
    static constexpr std::chrono::seconds UsualPatience{10};

    /// All of them must outlive the alert. Whatever is asked once `interruption` is readable counts
    /// as unanswered.
    struct Surroundings {
        platform::SystemLog& log;
        MainThreadQueue& mainThread;
        NotificationServer& notifications;
        int interruption;
        /// The path of the dialog program.
        std::string dialog;
        /// How long a window may take to come up.
        std::chrono::milliseconds patience = UsualPatience;
    };

    explicit Alert(Surroundings surroundings) : surroundings_(std::move(surroundings)) {}

    int runModal(const AlertContent& content) override;

  private:
    enum class Waiting { Ended, Interrupted };

    /// Waits for an answer, for the window only so long.
    [[nodiscard]] Waiting waitFor(DialogProcess& window) const;
    void tellOtherwise(const AlertContent& content) const;

    Surroundings surroundings_;
};

}  // namespace brisel::platform::desktop
