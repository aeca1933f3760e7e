// Declares the AppKit attributes of NSAttributedString.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSText.h>

NS_ASSUME_NONNULL_BEGIN

extern NSAttributedStringKey const NSFontAttributeName;
extern NSAttributedStringKey const NSParagraphStyleAttributeName;
extern NSAttributedStringKey const NSForegroundColorAttributeName;

@interface NSMutableAttributedString (NSAttributedStringAppKitAdditions)
- (void)setAlignment:(NSTextAlignment)alignment range:(NSRange)range;
@end

NS_ASSUME_NONNULL_END
