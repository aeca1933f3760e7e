// Windows, views and what they show.
// SPDX-License-Identifier: MIT
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

// What is read out about a view.
@protocol NSAccessibility <NSObject>
@property(nullable, copy) NSString* accessibilityLabel API_AVAILABLE(macos(10.10));
@end

// Light and dark.
typedef NSString* NSAppearanceName;

API_AVAILABLE(macos(10.9))
@interface NSAppearance : NSObject <NSSecureCoding>
@property(readonly, copy) NSAppearanceName name;
@end

@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance API_AVAILABLE(macos(10.9));
@property(readonly, strong) NSAppearance* effectiveAppearance API_AVAILABLE(macos(10.9));
@end

// The states of a check mark.
typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueMixed API_AVAILABLE(macos(10.13)) = -1;
static const NSControlStateValue NSControlStateValueOff API_AVAILABLE(macos(10.13)) = 0;
static const NSControlStateValue NSControlStateValueOn API_AVAILABLE(macos(10.13)) = 1;

// Images.
typedef NSString* NSImageName;

@interface NSImage : NSObject <NSCopying, NSSecureCoding>
// The object is shared by all who ask for the name.
+ (nullable NSImage*)imageNamed:(NSImageName)name;
@property NSSize size;
- (nullable NSImageName)name;
@end

// What can answer to events.
@interface NSResponder : NSObject <NSCoding>
- (instancetype)init NS_DESIGNATED_INITIALIZER;
@end

// What draws itself in a window.
@class NSWindow;

@interface NSView : NSResponder <NSAppearanceCustomization, NSAccessibility>
@property(nullable, readonly, assign) NSWindow* window;
@end

// Views that do something.
@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@property(getter=isEnabled) BOOL enabled;
@end

// Buttons.
@interface NSButton : NSControl
@property(copy) NSString* title;
@property(nullable, strong) NSImage* image;
@property NSControlStateValue state;
@property(copy) NSString* keyEquivalent;
@end

// Windows.
@class NSView;

@interface NSWindow : NSResponder <NSAppearanceCustomization>
@property(copy) NSString* title;
@property NSInteger level;
- (void)center;
- (void)orderFrontRegardless;
- (void)close;
@end

// The numbers of center and right change places on Intel.
typedef NS_ENUM(NSInteger, NSTextAlignment) {
#if __arm64__
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
#else
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
#endif
};

// Attributes of text on the screen.
extern NSAttributedStringKey const NSFontAttributeName;

@interface NSMutableAttributedString (NSAttributedStringAppKitAdditions)
- (void)setAlignment:(NSTextAlignment)alignment range:(NSRange)range;
@end

// Fonts, as much as a menu item's title needs.
@interface NSFont : NSObject
+ (NSFont*)menuFontOfSize:(CGFloat)fontSize;
@end

// What comes from a nib.
@interface NSObject (NSNibAwaking)
- (void)awakeFromNib;
@end
NS_ASSUME_NONNULL_END
