// The simulated Mac that the stand-in frameworks act on, their orders and their complaints.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/simulated/Mac.h"

namespace brisel::tests::macos {

/// Aborts if setWorld() was not called.
platform::simulated::Mac& world();
/// `mac` must outlive its use. Resets the orders.
void setWorld(platform::simulated::Mac& mac);

/// How the stand-ins deviate from their default behaviour.
struct Orders {
    /// File managers delete from the real file system, not the simulated one.
    bool deletesRealFiles = false;
    /// File managers report a deletion without performing it.
    bool onlySaysItDeletes = false;
    /// Starts the system's own tools, not the simulated Mac's.
    bool startsRealTools = false;
    /// dlsym finds AuthorizationExecuteWithPrivileges by the framework's own handle alone.
    bool hidesExecuteFromDefault = false;
    /// The next start of a tool fails after the fork, and leaves a zombie.
    bool nextStartLeavesZombie = false;
    /// The stream of a tool names the tool's process as its owner.
    bool namesOwner = false;
    /// The next call that can raise an exception does.
    bool nextCallRaises = false;
    /// DASessionCreate returns null.
    bool noSession = false;
    /// Mounts and unmounts are refused before the call returns, as Disk Arbitration does for a
    /// request that it cannot send.
    bool refusesAtOnce = false;
    /// How the class SMAppService answers; without an answer it is missing, as before macOS 13.
    std::optional<bool> appServiceAnswer;
    /// A second display has a menu bar of its own, and so a copy of the status item.
    bool hasSecondDisplay = false;
    /// Handlers of the notification center wait for deliverAnswers().
    bool answersWait = false;
};
Orders& orders();

/// Records a misuse of a framework that the real one would not report at once.
void complain(const std::string& complaint);
/// The complaints since the last call.
std::vector<std::string> takeComplaints();

}  // namespace brisel::tests::macos
