// Where the files lie that came with the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::linux {

/// The path of the running program.
std::string ownPath();

/// The path of a tool of ours: beside the program, as in a build, else in `../libexec/brisel`.
/// Whether it is there is not looked at.
std::string toolPath(const std::string& name);

/// The folder of our tools.
std::string toolFolder();

/// The icons' base folder, `../share/icons`; empty for that of the system, into which every desktop
/// looks anyway.
std::string iconThemePath();

}  // namespace brisel::platform::linux
