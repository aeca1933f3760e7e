// Service Management's umbrella header, with the parts that a small menu-bar program needs.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile and run the adapters without a Mac.
#pragma once

#include <ServiceManagement/SMLoginItem.h>
