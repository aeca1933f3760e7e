// A signed status is compared with an unsigned number.
// SPDX-License-Identifier: MIT
//
// says: comparison of integers of different signs: 'DAReturn'
#import <DiskArbitration/DiskArbitration.h>

bool isBusy(DADissenterRef dissenter) {
    return DADissenterGetStatus(dissenter) == 0xF8DA0002;
}
