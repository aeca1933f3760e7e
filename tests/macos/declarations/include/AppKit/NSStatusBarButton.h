// The button of a status item.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <AppKit/NSButton.h>

NS_ASSUME_NONNULL_BEGIN

API_AVAILABLE(macos(10.10))
@interface NSStatusBarButton : NSButton
@property BOOL appearsDisabled;
@end

NS_ASSUME_NONNULL_END
