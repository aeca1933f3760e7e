// The part of POSIX that every program needs.
// SPDX-License-Identifier: MIT
#pragma once

#include <stddef.h>
#include <sys/types.h>

#ifndef NULL
#define NULL __null
#endif

// What the thread headers of the C++ library ask for.
#define _POSIX_TIMEOUTS 200112L

#define STDIN_FILENO 0
#define STDOUT_FILENO 1
#define STDERR_FILENO 2
#define F_OK 0
#define X_OK (1 << 0)
#define W_OK (1 << 1)
#define R_OK (1 << 2)

#ifdef __cplusplus
extern "C" {
#endif

extern char** environ;

int chdir(const char* path);
int close(int descriptor);
int dup2(int from, int to);
void _exit(int status) __attribute__((noreturn));
pid_t fork(void);
char* getcwd(char* buffer, size_t size);
int pipe(int descriptors[2]);
ssize_t read(int descriptor, void* buffer, size_t count);
unsigned int sleep(unsigned int seconds);
int usleep(useconds_t microseconds);
ssize_t write(int descriptor, const void* buffer, size_t count);
// The C++ library at hand calls it; on the Mac it has been deprecated since 10.12.
long syscall(long number, ...)
    __attribute__((availability(macos, introduced = 10.0, deprecated = 10.12)));

#ifdef __cplusplus
}
#endif
