// Declares NSAccessibility, the accessibility properties of a view.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSAccessibility <NSObject>
@property(nullable, copy) NSString* accessibilityLabel API_AVAILABLE(macos(10.10));
@property(nullable, copy) NSString* accessibilityHelp API_AVAILABLE(macos(10.10));
@property(nullable, copy) NSString* accessibilityTitle API_AVAILABLE(macos(10.10));
@property(getter=isAccessibilityElement) BOOL accessibilityElement API_AVAILABLE(macos(10.10));
@end

NS_ASSUME_NONNULL_END
