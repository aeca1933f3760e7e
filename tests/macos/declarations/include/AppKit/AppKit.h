// AppKit, as much of it as the application uses.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/Application.h>
