// The unsigned numbers of stdint.h, which takes them from here.
// SPDX-License-Identifier: MIT
#pragma once

typedef __UINT8_TYPE__ uint8_t;
typedef __UINT16_TYPE__ uint16_t;
typedef __UINT32_TYPE__ uint32_t;
typedef __UINT64_TYPE__ uint64_t;
