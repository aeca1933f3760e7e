// A function is overloaded for BOOL and bool, which on Apple silicon are one type.
// SPDX-License-Identifier: MIT
//
// says: redefinition of 'text'
// only: arm64
#import <Foundation/Foundation.h>

const char* text(bool value) {
    return value ? "true" : "false";
}

const char* text(BOOL value) {
    return value != NO ? "YES" : "NO";
}
