// Foundation, as much of it as the application uses.
// SPDX-License-Identifier: MIT
#pragma once

#include <AssertMacros.h>
#import <Foundation/Events.h>
#import <Foundation/Files.h>
#include <Security/Security.h>
