// A function has a name that is a macro's.
// SPDX-License-Identifier: MIT
//
// says: expected unqualified-id
#import <Foundation/Foundation.h>

bool check(NSString* text) {
    return [text length] > 0;
}
