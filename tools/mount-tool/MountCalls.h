// Wraps open_tree(2) and move_mount(2).
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::mounttool {

/// Returns a descriptor of a detached clone of the mount at `path`; -1 with errno on failure.
/// Closing it unmounts the clone unless attached.
int cloneMount(const char* path);

/// Attaches a clone to an open folder. Returns 0, or -1 with errno.
int attachMount(int mount, int folder);

}  // namespace brisel::mounttool
