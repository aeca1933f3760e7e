// Foundation and AppKit.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>
#import <Foundation/Foundation.h>
