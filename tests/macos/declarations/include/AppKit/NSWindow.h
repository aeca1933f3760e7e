// Declares NSWindow.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSAppearance.h>
#import <AppKit/NSResponder.h>

NS_ASSUME_NONNULL_BEGIN

@class NSView;

@interface NSWindow : NSResponder <NSAppearanceCustomization>
@property(copy) NSString* title;
@property(nullable, strong) __kindof NSView* contentView;
@property NSInteger level;
@property(readonly, getter=isVisible) BOOL visible;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)orderOut:(nullable id)sender;
- (void)close;
@end

NS_ASSUME_NONNULL_END
