// Preference keys of the application.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel {

inline constexpr const char* ShouldStartAtLoginKey = "shouldStartAtLogin";
inline constexpr const char* ShowDisclaimerKey = "showDisclaimer";

}  // namespace brisel
