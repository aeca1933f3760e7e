// The old number types of the Mac, on 64 bits.
// SPDX-License-Identifier: MIT
#pragma once

typedef unsigned char UInt8;
typedef unsigned int UInt32;
typedef int SInt32;
typedef unsigned char Boolean;
typedef SInt32 OSStatus;
