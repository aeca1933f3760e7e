// The signed numbers of stdint.h, which takes them from here: 64 bits are a long long.
// SPDX-License-Identifier: MIT
#pragma once

typedef __INT8_TYPE__ int8_t;
typedef __INT16_TYPE__ int16_t;
typedef __INT32_TYPE__ int32_t;
typedef __INT64_TYPE__ int64_t;
