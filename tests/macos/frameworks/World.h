// The simulated Mac that the stand-in frameworks act on, and what they have to complain about.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/simulated/Mac.h"

namespace brisel::tests::macos {

/// There must be one.
platform::simulated::Mac& world();
/// `mac` must outlive all that acts on it. Orders given before are forgotten.
void setWorld(platform::simulated::Mac& mac);

/// What the stand-ins do otherwise than they would by themselves.
struct Orders {
    /// File managers delete what is on the real file system, not in the simulated Mac's.
    bool deletesRealFiles = false;
    /// File managers say that they have deleted what they leave there.
    bool onlySaysItDeletes = false;
    /// The tools that are started are the system's own, not the simulated Mac's.
    bool startsRealTools = false;
    /// The next call of those that can raise an exception does so.
    bool nextCallRaises = false;
    /// No session with Disk Arbitration comes about.
    bool noSession = false;
    /// Requests are refused before the call returns, as those are that cannot even be handed to the
    /// system.
    bool refusesAtOnce = false;
    /// The notification center answers when it is told to, not within the call.
    bool answersWait = false;
};
Orders& orders();

/// Notes a use of a framework that the real one punishes in a way that nobody would see at once.
void complain(const std::string& complaint);
/// What was noted since this was asked last.
std::vector<std::string> takeComplaints();

}  // namespace brisel::tests::macos
