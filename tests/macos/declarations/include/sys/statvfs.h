// How a file system is mounted.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#define ST_RDONLY 0x00000001
#define ST_NOSUID 0x00000002

struct statvfs {
    unsigned long f_bsize;
    unsigned long f_frsize;
    unsigned int f_blocks;
    unsigned int f_bfree;
    unsigned int f_bavail;
    unsigned int f_files;
    unsigned int f_ffree;
    unsigned int f_favail;
    unsigned long f_fsid;
    unsigned long f_flag;
    unsigned long f_namemax;
};

#ifdef __cplusplus
extern "C" {
#endif

int statvfs(const char* path, struct statvfs* result);

#ifdef __cplusplus
}
#endif
