// The process as the programs of a Linux machine want it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace brisel::platform::headless {

/// To be called first: whoever started the process may have closed a standard descriptor, which the
/// next thing that is opened would take, or ignore ended children, of which the program must hear.
void restoreProcessDefaults();

/// The user's languages, the preferred one first, as the localised tables name them: de from
/// de_DE.UTF-8, zh-Hans from zh_CN. Of use once the locale is set.
std::vector<std::string> userLanguages();

}  // namespace brisel::platform::headless
