// Declares NSView.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSAccessibility.h>
#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSWindow;

@interface NSView : NSResponder <NSAppearanceCustomization, NSAccessibility>
- (instancetype)initWithFrame:(NSRect)frame NS_DESIGNATED_INITIALIZER;
- (nullable instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly, assign) NSWindow* window;
@property(nullable, readonly, assign) NSView* superview;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property(getter=isHidden) BOOL hidden;
@property NSRect frame;
@property NSRect bounds;
@property(nullable, copy) NSString* toolTip;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (void)viewDidMoveToWindow;
- (void)viewDidChangeEffectiveAppearance API_AVAILABLE(macos(10.14));
@property BOOL needsDisplay;
@end

NS_ASSUME_NONNULL_END
