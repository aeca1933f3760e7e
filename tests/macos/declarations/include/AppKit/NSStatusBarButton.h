// Declares NSStatusBarButton.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/NSButton.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.10))
@interface NSStatusBarButton : NSButton
@property BOOL appearsDisabled;
@end

NS_ASSUME_NONNULL_END
