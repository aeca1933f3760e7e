// Declares NSButton.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSCell.h>
#import <AppKit/NSControl.h>
#import <AppKit/NSImage.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSButton : NSControl
@property(copy) NSString* title;
@property(copy) NSString* alternateTitle;
@property(nullable, strong) NSImage* image;
@property(nullable, strong) NSImage* alternateImage;
@property NSControlStateValue state;
@property(copy) NSString* keyEquivalent;
@end

NS_ASSUME_NONNULL_END
