// An object goes without its base class being told.
// SPDX-License-Identifier: MIT
//
// says: method possibly missing a [super dealloc] call
#import <Foundation/Foundation.h>

@interface Guard : NSObject {
    NSString* folder_;
}
@end

@implementation Guard

- (void)dealloc {
    [folder_ release];
}

@end
