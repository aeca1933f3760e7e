// Declares NSParagraphStyle.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSText.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSParagraphStyle : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(class, readonly, copy) NSParagraphStyle* defaultParagraphStyle;
@property(readonly) NSTextAlignment alignment;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
@property NSTextAlignment alignment;
@end

NS_ASSUME_NONNULL_END
