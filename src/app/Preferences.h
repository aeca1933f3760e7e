// The keys of the preferences that the application keeps.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel {

inline constexpr const char* ShouldStartAtLoginKey = "shouldStartAtLogin";
inline constexpr const char* ShowDisclaimerKey = "showDisclaimer";

}  // namespace brisel
