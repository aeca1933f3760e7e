// Declares NSControl.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSControl : NSView
- (instancetype)initWithFrame:(NSRect)frame NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@property(getter=isEnabled) BOOL enabled;
@property(copy) NSString* stringValue;
- (BOOL)sendAction:(nullable SEL)action to:(nullable id)target;
- (void)performClick:(nullable id)sender;
@end

NS_ASSUME_NONNULL_END
