// The old number types of the Mac, on 64 bits.
// SPDX-License-Identifier: MIT
#pragma once

typedef unsigned char UInt8;
typedef signed char SInt8;
typedef unsigned short UInt16;
typedef short SInt16;
typedef unsigned int UInt32;
typedef int SInt32;
typedef unsigned long long UInt64;
typedef long long SInt64;
typedef float Float32;
typedef double Float64;
typedef unsigned char Boolean;
typedef SInt32 OSStatus;
typedef UInt32 OSType;

enum { noErr = 0 };
