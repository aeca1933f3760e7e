// Declares the Foundation part of NSAttributedString.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/NSDictionary.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* NSAttributedStringKey;

@interface NSAttributedString : NSObject <NSCopying, NSMutableCopying, NSSecureCoding>
@property(readonly, copy) NSString* string;
- (NSDictionary<NSAttributedStringKey, id>*)attributesAtIndex:(NSUInteger)location
                                               effectiveRange:(nullable NSRange*)range;
@end

@interface NSAttributedString (NSExtendedAttributedString)
@property(readonly) NSUInteger length;
- (instancetype)initWithString:(NSString*)string;
- (instancetype)initWithString:(NSString*)string
                    attributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes;
- (instancetype)initWithAttributedString:(NSAttributedString*)string;
@end

@interface NSMutableAttributedString : NSAttributedString
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string;
- (void)setAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attributes
                range:(NSRange)range;
@end

@interface NSMutableAttributedString (NSExtendedMutableAttributedString)
- (void)addAttribute:(NSAttributedStringKey)name value:(id)value range:(NSRange)range;
- (void)addAttributes:(NSDictionary<NSAttributedStringKey, id>*)attributes range:(NSRange)range;
- (void)removeAttribute:(NSAttributedStringKey)name range:(NSRange)range;
@end

NS_ASSUME_NONNULL_END
