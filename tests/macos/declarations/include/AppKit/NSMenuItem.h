// Declares NSMenuItem.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

@class NSMenu;

@interface NSMenuItem : NSObject <NSCopying, NSCoding>
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title
                       action:(nullable SEL)action
                keyEquivalent:(NSString*)character NS_DESIGNATED_INITIALIZER;
- (instancetype)initWithCoder:(NSCoder*)coder NS_DESIGNATED_INITIALIZER;
@property(nullable, assign) NSMenu* menu;
@property(nullable, strong) NSMenu* submenu;
@property(nullable, readonly, assign) NSMenuItem* parentItem;
@property(copy) NSString* title;
@property(nullable, copy) NSAttributedString* attributedTitle;
@property(getter=isSeparatorItem, readonly) BOOL separatorItem;
@property(copy) NSString* keyEquivalent;
@property(nullable, strong) NSImage* image;
@property NSControlStateValue state;
@property(getter=isEnabled) BOOL enabled;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property NSInteger tag;
@property(nullable, strong) id representedObject;
@property(getter=isHidden) BOOL hidden;
@property(nullable, copy) NSString* toolTip;
@property NSInteger indentationLevel;
@end

NS_ASSUME_NONNULL_END
