// What a Create function gives is taken for an Objective-C object.
// SPDX-License-Identifier: MIT
//
// says: cannot initialize return object of type 'NSString *'
#import <Foundation/Foundation.h>

NSString* textOf(CFUUIDRef uuid) {
    return CFUUIDCreateString(kCFAllocatorDefault, uuid);
}
