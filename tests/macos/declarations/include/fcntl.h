// Opening files and managing descriptors, with the Mac's numbers.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#define O_CLOEXEC 0x01000000

#define F_GETFD 1
#define F_SETFD 2
#define F_GETOWN 5
#define F_SETOWN 6
#define FD_CLOEXEC 1

#ifdef __cplusplus
extern "C" {
#endif

int open(const char* path, int flags, ...);
int fcntl(int descriptor, int command, ...);

#ifdef __cplusplus
}
#endif
