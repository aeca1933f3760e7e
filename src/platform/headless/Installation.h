// Paths of the program and the files installed with it.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform::headless {

/// Path of the running executable.
std::string ownPath();

/// Folder of Brisel's tools: `../libexec/brisel` if installed, else the program's own folder, as in
/// a build tree.
std::string toolFolder();

/// Path of the tool `name`, which need not exist.
std::string toolPath(const std::string& name);

/// Brisel's icon: a theme icon name, or a file path if iconThemePath is not empty.
std::string applicationIcon();

/// Base folder of Brisel's icons, `../share/icons`. Empty if they are missing or in
/// /usr/share/icons, which desktops search anyway.
std::string iconThemePath();

}  // namespace brisel::platform::headless
