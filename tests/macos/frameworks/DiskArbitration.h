// The stand-in Disk Arbitration.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>
#import <Foundation/Foundation.h>

namespace brisel::tests::macos {

/// Turns the simulated main loop once, as the main run loop does in `mode`; true if there was work.
/// Does nothing unless a session is scheduled in `mode` or in the common modes.
bool deliverDiskEvents(NSString* mode);

/// Sets the value of `key` in every disk description, of any type.
void describeWith(CFStringRef key, id value);
/// Restores the state at process start: no scheduled session, no describeWith() values.
void resetDiskArbitration();

}  // namespace brisel::tests::macos
