// What the headers of User Notifications have in common.
// SPDX-License-Identifier: MIT
//
// The project's own declarations of a public interface, for checking and running the adapters
// without a Mac. The variables are those of the stand-ins.
#pragma once

#import <Foundation/Foundation.h>
#include <os/availability.h>

// What only the framework itself makes.
#define BRISEL_UN_NOT_YOURS __attribute__((unavailable))
