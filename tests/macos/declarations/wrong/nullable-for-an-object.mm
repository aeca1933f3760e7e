// What may be null is given where there must be an object.
// SPDX-License-Identifier: MIT
//
// says: implicit conversion from nullable pointer 'CFDictionaryRef
#import <DiskArbitration/DiskArbitration.h>

const void* kindOf(DADiskRef disk) {
    return CFDictionaryGetValue(DADiskCopyDescription(disk), kDADiskDescriptionVolumeKindKey);
}
