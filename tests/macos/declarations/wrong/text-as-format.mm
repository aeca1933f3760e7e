// A text is logged as if it were a format.
// SPDX-License-Identifier: MIT
//
// says: format string is not a string literal
#import <Foundation/Foundation.h>

void log(NSString* text) {
    NSLog(text);
}
