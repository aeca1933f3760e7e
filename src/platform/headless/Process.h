// Process setup and languages of the Linux programs.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::platform::headless {

/// Opens closed standard descriptors on /dev/null and resets an inherited SIGCHLD disposition. Call
/// first in main, before anything else opens a descriptor.
void restoreProcessDefaults();

/// The user's languages in order of preference, named as the .lproj folders: de for de_DE.UTF-8,
/// zh-Hans for zh_CN.
std::vector<std::string> userLanguages();

}  // namespace brisel::platform::headless
