// What the nib editor looks for, and what comes from a nib.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

// IBOutlet and IBAction are words of the compiler itself.

@interface NSObject (NSNibAwaking)
- (void)awakeFromNib;
@end

NS_ASSUME_NONNULL_END
