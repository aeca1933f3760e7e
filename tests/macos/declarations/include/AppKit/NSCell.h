// Declares NSControlStateValue, the state of a check mark.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueMixed API_AVAILABLE(macos(10.13)) = -1;
static const NSControlStateValue NSControlStateValueOff API_AVAILABLE(macos(10.13)) = 0;
static const NSControlStateValue NSControlStateValueOn API_AVAILABLE(macos(10.13)) = 1;

static const NSControlStateValue NSMixedState
    API_DEPRECATED_WITH_REPLACEMENT("NSControlStateValueMixed", macos(10.0, 10.14)) = -1;
static const NSControlStateValue NSOffState
    API_DEPRECATED_WITH_REPLACEMENT("NSControlStateValueOff", macos(10.0, 10.14)) = 0;
static const NSControlStateValue NSOnState API_DEPRECATED_WITH_REPLACEMENT("NSControlStateValueOn",
                                                                           macos(10.0, 10.14)) = 1;

NS_ASSUME_NONNULL_END
