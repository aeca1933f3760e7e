// Declares NSStatusItem.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSMenu.h>
#import <AppKit/NSStatusBar.h>
#import <AppKit/NSStatusBarButton.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSStatusItem : NSObject
@property(nullable, readonly, weak) NSStatusBar* statusBar;
@property CGFloat length;
@property(nullable, strong) NSMenu* menu;
@property(nullable, readonly, strong) NSStatusBarButton* button API_AVAILABLE(macos(10.10));
@property(getter=isVisible) BOOL visible API_AVAILABLE(macos(10.12));
@end

@interface NSStatusItem (NSStatusItemDeprecated)
@property(nullable) SEL action API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, weak) id target API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, copy)
    NSString* title API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, strong)
    NSImage* image API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, strong)
    NSImage* alternateImage API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(getter=isEnabled)
    BOOL enabled API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, copy)
    NSString* toolTip API_DEPRECATED("use the button property", macos(10.0, 10.14));
@end

NS_ASSUME_NONNULL_END
