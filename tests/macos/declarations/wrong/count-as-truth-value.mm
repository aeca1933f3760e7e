// A count becomes a BOOL, which on Intel keeps its low byte alone.
// SPDX-License-Identifier: MIT
//
// says: to 'BOOL'
// only: x86_64
#import <Foundation/Foundation.h>

BOOL hasEntries(NSArray* entries) {
    return [entries count];
}
