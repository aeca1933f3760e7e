// Cocoa's umbrella header: Foundation and AppKit.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
