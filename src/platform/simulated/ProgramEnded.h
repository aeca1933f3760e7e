// The end of the program on the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform::simulated {

/// Thrown where a real process would exit. Unwinds the program up to the caller that started the
/// simulation. The simulated Mac throws nothing else.
struct ProgramEnded {};

}  // namespace brisel::platform::simulated
