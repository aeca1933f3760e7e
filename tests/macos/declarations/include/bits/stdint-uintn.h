// Replaces glibc's unsigned integer types: on macOS, 64 bits are a long long.
// SPDX-License-Identifier: MIT
//
// Our declarations of a public interface, to compile the adapters without a Mac.
#pragma once

typedef __UINT8_TYPE__ uint8_t;
typedef __UINT16_TYPE__ uint16_t;
typedef __UINT32_TYPE__ uint32_t;
typedef __UINT64_TYPE__ uint64_t;
