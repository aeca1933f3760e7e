// The floating-point types of the C library's headers: a Mac has none of 128 bits.
// SPDX-License-Identifier: MIT
#pragma once

#define __HAVE_FLOAT128 0
#define __HAVE_DISTINCT_FLOAT128 0
#define __HAVE_FLOAT64X 0
#define __HAVE_FLOAT64X_LONG_DOUBLE 0

#include <bits/floatn-common.h>
