// Declares NSFont.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSFont : NSObject
+ (NSFont*)menuFontOfSize:(CGFloat)fontSize;
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
@end

NS_ASSUME_NONNULL_END
