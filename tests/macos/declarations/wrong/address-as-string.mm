// An address of Core Foundation is taken for a string.
// SPDX-License-Identifier: MIT
//
// says: 'CFURLRef' (aka 'const __CFURL *') bridges to NSURL, not 'NSString'
#import <Foundation/Foundation.h>

NSString* textOf(CFURLRef url) {
    return (__bridge NSString*)url;
}
