// Declares what Interface Builder looks for, and awakeFromNib.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

// clang defines IBOutlet and IBAction.

@interface NSObject (NSNibAwaking)
- (void)awakeFromNib;
@end

NS_ASSUME_NONNULL_END
