// Foundation and AppKit.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking the adapters without a Mac.
#pragma once

#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
