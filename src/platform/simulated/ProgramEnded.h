// The end of the program on the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform::simulated {

/// Thrown where a real process would end: it unwinds whatever the program was doing, so that
/// nothing of it runs any more, up to whoever started the simulation. Nothing else throws here.
struct ProgramEnded {};

}  // namespace brisel::platform::simulated
