// Service Management, as much of it as a small menu-bar program needs.
// SPDX-License-Identifier: MIT
#pragma once

#include <ServiceManagement/SMLoginItem.h>
