// The application, its menus, status items and alerts.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/Views.h>
#include <sys/types.h>

NS_ASSUME_NONNULL_BEGIN

// Items of a menu.
@class NSMenu;

@interface NSMenuItem : NSObject <NSCopying, NSCoding>
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)title
                       action:(nullable SEL)action
                keyEquivalent:(NSString*)character NS_DESIGNATED_INITIALIZER;
@property(nullable, assign) NSMenu* menu;
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
@end

// Menus.
@protocol NSMenuDelegate;

@interface NSMenu : NSObject <NSCopying, NSCoding>
- (instancetype)initWithTitle:(NSString*)title NS_DESIGNATED_INITIALIZER;
@property(copy) NSString* title;
// These raise exceptions for an index outside, for another menu's item and for nil.
- (void)insertItem:(NSMenuItem*)item atIndex:(NSInteger)index;
- (void)removeItem:(NSMenuItem*)item;
@property(copy) NSArray<NSMenuItem*>* itemArray;
@property(nullable, weak) id<NSMenuDelegate> delegate;
@end

@protocol NSMenuDelegate <NSObject>
@optional
@end

// Running applications.
typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

typedef NS_OPTIONS(NSUInteger, NSApplicationActivationOptions) {
    NSApplicationActivateIgnoringOtherApps API_DEPRECATED("has no effect in macOS 14",
                                                          macos(10.6, 14.0)) = 1 << 1,
};

@interface NSRunningApplication : NSObject
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(readonly, getter=isTerminated) BOOL terminated;
- (BOOL)terminate;
@end

// The application.
@class NSWindow;
@protocol NSApplicationDelegate;

typedef NSInteger NSModalResponse;
static const NSModalResponse NSModalResponseAbort = -1001;

extern NSRunLoopMode const NSModalPanelRunLoopMode;
extern NSRunLoopMode const NSEventTrackingRunLoopMode;

@class NSApplication;
CF_EXPORT __kindof NSApplication* _Null_unspecified NSApp;

@interface NSApplication : NSResponder <NSAppearanceCustomization>
@property(nullable, weak) id<NSApplicationDelegate> delegate;
@property(getter=isRunning, readonly) BOOL running;
- (void)run;
- (void)stop:(nullable id)sender;
- (void)terminate:(nullable id)sender;
- (void)activate API_AVAILABLE(macos(14.0));
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps
    API_DEPRECATED("use activate", macos(10.0, API_TO_BE_DEPRECATED));
@end

@interface NSApplication (NSStandardAboutPanel)
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
@end

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationWillTerminate:(NSNotification*)notification;
@end

CF_EXTERN_C_BEGIN
int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);
CF_EXTERN_C_END

// Alerts.
typedef NS_ENUM(NSUInteger, NSAlertStyle) {
    NSAlertStyleCritical = 2,
};

static const NSModalResponse NSAlertFirstButtonReturn = 1000;

@interface NSAlert : NSObject
@property(copy) NSString* messageText;
@property(copy) NSString* informativeText;
- (NSButton*)addButtonWithTitle:(NSString*)title;
@property(readonly, copy) NSArray<NSButton*>* buttons;
// At once, not before the alert is shown.
- (void)layout;
// Turns the run loop in NSModalPanelRunLoopMode.
- (NSModalResponse)runModal;
@property(readonly, strong) NSWindow* window;
@end

// The right end of the menu bar.
@class NSStatusItem;

static const CGFloat NSVariableStatusItemLength = -1.0;

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
// The item is released with its last reference.
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
@end

// The button of a status item.
API_AVAILABLE(macos(10.10))
@interface NSStatusBarButton : NSButton
@end

// An item in the menu bar.
@interface NSStatusItem : NSObject
@property CGFloat length;
@property(nullable, strong) NSMenu* menu;
@property(nullable, readonly, strong) NSStatusBarButton* button API_AVAILABLE(macos(10.10));
@end

@interface NSStatusItem (NSStatusItemDeprecated)
@property(nullable) SEL action API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, weak) id target API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, copy)
    NSString* title API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(nullable, strong)
    NSImage* image API_DEPRECATED("use the button property", macos(10.0, 10.14));
@property(getter=isEnabled)
    BOOL enabled API_DEPRECATED("use the button property", macos(10.0, 10.14));
@end

// Finder and other applications.
@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
- (BOOL)openURL:(NSURL*)url;
- (void)openURL:(NSURL*)url
        configuration:(NSWorkspaceOpenConfiguration*)configuration
    completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable application,
                                         NSError* _Nullable error))completionHandler
    API_AVAILABLE(macos(10.15));
@end

NS_ASSUME_NONNULL_END
