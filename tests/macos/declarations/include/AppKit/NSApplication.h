// Declares NSApplication.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSAppearance.h>
#import <AppKit/NSMenu.h>
#import <AppKit/NSResponder.h>
#import <AppKit/NSRunningApplication.h>

NS_ASSUME_NONNULL_BEGIN

@class NSWindow;
@protocol NSApplicationDelegate;

typedef NSInteger NSModalResponse;
static const NSModalResponse NSModalResponseStop = -1000;
static const NSModalResponse NSModalResponseAbort = -1001;
static const NSModalResponse NSModalResponseContinue = -1002;
static const NSModalResponse NSModalResponseOK = 1;
static const NSModalResponse NSModalResponseCancel = 0;

extern NSRunLoopMode const NSModalPanelRunLoopMode;
extern NSRunLoopMode const NSEventTrackingRunLoopMode;
extern NSNotificationName const NSApplicationDidFinishLaunchingNotification;
extern NSNotificationName const NSApplicationWillTerminateNotification;

@class NSApplication;
CF_EXPORT __kindof NSApplication* _Null_unspecified NSApp;

@interface NSApplication : NSResponder <NSAppearanceCustomization>
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, weak) id<NSApplicationDelegate> delegate;
@property(nullable, strong) NSMenu* mainMenu;
@property(readonly, copy) NSArray<NSWindow*>* windows;
@property(getter=isActive, readonly) BOOL active;
@property(getter=isRunning, readonly) BOOL running;
@property(null_resettable, strong) NSImage* applicationIconImage;
- (void)finishLaunching;
- (void)run;
- (NSModalResponse)runModalForWindow:(NSWindow*)window;
- (void)stop:(nullable id)sender;
- (void)stopModalWithCode:(NSModalResponse)code;
- (void)abortModal;
- (void)hide:(nullable id)sender;
- (void)terminate:(nullable id)sender;
- (void)activate API_AVAILABLE(macos(14.0));
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps
    API_DEPRECATED("use activate", macos(10.0, API_TO_BE_DEPRECATED));
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy API_AVAILABLE(macos(10.6));
- (NSApplicationActivationPolicy)activationPolicy API_AVAILABLE(macos(10.6));
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (void)replyToApplicationShouldTerminate:(BOOL)shouldTerminate;
@end

@interface NSApplication (NSStandardAboutPanel)
- (void)orderFrontStandardAboutPanel:(nullable id)sender;
@end

typedef NS_ENUM(NSUInteger, NSApplicationTerminateReply) {
    NSTerminateCancel = 0,
    NSTerminateNow = 1,
    NSTerminateLater = 2,
};

@protocol NSApplicationDelegate <NSObject>
@optional
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)hasVisible;
- (void)applicationWillFinishLaunching:(NSNotification*)notification;
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (void)applicationDidBecomeActive:(NSNotification*)notification;
- (void)applicationWillTerminate:(NSNotification*)notification;
@end

CF_EXTERN_C_BEGIN
int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);
CF_EXTERN_C_END

NS_ASSUME_NONNULL_END
