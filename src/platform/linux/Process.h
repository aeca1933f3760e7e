// The process as the programs of a Linux machine want it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::linux {

/// To be called first: whoever started the process may have closed a standard descriptor, which the
/// next thing that is opened would take, or ignore ended children, of which the program must hear.
void prepareProcess();

/// The user's language as the localised tables name it: de from de_DE.UTF-8, zh-Hans from zh_CN. Of
/// use once the locale is set.
std::string userLanguage();

}  // namespace brisel::platform::linux
