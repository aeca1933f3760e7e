// A key of a disk's description is misspelt.
// SPDX-License-Identifier: MIT
//
// says: use of undeclared identifier 'kDADiskDescriptionVolumeUuidKey'
#import <DiskArbitration/DiskArbitration.h>

const void* uuidIn(CFDictionaryRef description) {
    return CFDictionaryGetValue(description, kDADiskDescriptionVolumeUuidKey);
}
