// Declares NSWorkspace.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSImage.h>
#import <AppKit/NSRunningApplication.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
@property BOOL activates;
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
- (void)openApplicationAtURL:(NSURL*)url
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(void (^_Nullable)(NSRunningApplication* _Nullable application,
                                                NSError* _Nullable error))completionHandler
    API_AVAILABLE(macos(10.15));
- (BOOL)openFile:(NSString*)path API_DEPRECATED("use openURL:", macos(10.0, 11.0));
- (BOOL)launchApplication:(NSString*)name
    API_DEPRECATED("use openApplicationAtURL:configuration:completionHandler:", macos(10.0, 11.0));
- (BOOL)selectFile:(nullable NSString*)path inFileViewerRootedAtPath:(NSString*)root;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)urls API_AVAILABLE(macos(10.6));
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier
    API_AVAILABLE(macos(10.6));
- (NSArray<NSURL*>*)URLsForApplicationsWithBundleIdentifier:(NSString*)bundleIdentifier
    API_AVAILABLE(macos(12.0));
- (NSImage*)iconForFile:(NSString*)path;
@end

NS_ASSUME_NONNULL_END
