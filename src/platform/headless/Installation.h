// Where the files lie that came with the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::headless {

/// The path of the running program.
std::string ownPath();

/// The folder of our tools: `../libexec/brisel` as installed, else that of the program, as in a
/// build.
std::string toolFolder();

/// The path of one of them. Whether it is there is not looked at.
std::string toolPath(const std::string& name);

/// The program's own icon: its name in the theme, or its file where no theme has it.
std::string applicationIcon();

/// The icons' base folder, `../share/icons`; empty for that of the system, into which every desktop
/// looks anyway.
std::string iconThemePath();

}  // namespace brisel::platform::headless
