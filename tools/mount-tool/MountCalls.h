// The kernel's calls to take a mount from one place and put it in another, by descriptors.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::mounttool {

/// A descriptor of a copy of the mount at `path` that is attached nowhere; -1 with `errno`. Closing
/// it unmounts the copy unless it has been attached.
int cloneMount(const char* path);

/// Attaches such a copy to an open folder; 0, or -1 with `errno`.
int attachMount(int mount, int folder);

}  // namespace brisel::mounttool
