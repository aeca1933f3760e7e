// The selector of a timer's method is misspelt.
// SPDX-License-Identifier: MIT
//
// says: undeclared selector 'timerFires:'
#import <Foundation/Foundation.h>

@interface Target : NSObject
- (void)timerFired:(NSTimer*)timer;
@end

NSTimer* timerFor(Target* target) {
    return [NSTimer scheduledTimerWithTimeInterval:1
                                            target:target
                                          selector:@selector(timerFires:)
                                          userInfo:nil
                                           repeats:YES];
}
