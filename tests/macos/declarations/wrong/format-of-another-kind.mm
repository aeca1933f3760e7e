// A format does not fit its argument.
// SPDX-License-Identifier: MIT
//
// says: format specifies type 'char *' but the argument has type 'NSString *'
#import <Foundation/Foundation.h>

void logName(NSString* name) {
    NSLog(@"%s", name);
}
