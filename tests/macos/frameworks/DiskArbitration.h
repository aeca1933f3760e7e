// The stand-in Disk Arbitration.
// SPDX-License-Identifier: MIT
#pragma once

#import <DiskArbitration/DiskArbitration.h>
#import <Foundation/Foundation.h>

namespace brisel::tests::macos {

/// Lets what waits reach the program, as the main run loop does that turns in this mode; true when
/// there was anything. Nothing comes but through a session that is scheduled for the mode.
bool deliverDiskEvents(NSString* mode);

/// Lets every description have this value for this key, of whatever type.
void describeWith(CFStringRef key, id value);
/// Everything as at the start of a process: no session is scheduled, nothing was told above.
void resetDiskArbitration();

}  // namespace brisel::tests::macos
