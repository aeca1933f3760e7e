// Fonts, as much as a menu item's title needs.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSFont : NSObject
+ (NSFont*)menuFontOfSize:(CGFloat)fontSize;
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
@end

NS_ASSUME_NONNULL_END
