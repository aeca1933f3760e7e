// Service Management, as much of it as a small menu-bar program needs.
// SPDX-License-Identifier: MIT
#pragma once

#import <ServiceManagement/SMAppService.h>
#include <ServiceManagement/SMLoginItem.h>
