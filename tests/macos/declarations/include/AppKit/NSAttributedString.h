// Attributes of text on the screen.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
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
