// Sockets, with the Mac's numbers.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#define SOCK_STREAM 1
#define AF_UNIX 1
#define MSG_DONTWAIT 0x80

typedef unsigned char sa_family_t;

struct sockaddr {
    unsigned char sa_len;
    sa_family_t sa_family;
    char sa_data[14];
};

#ifdef __cplusplus
extern "C" {
#endif

ssize_t send(int socket, const void* buffer, size_t length, int flags);
int socket(int domain, int type, int protocol);
int socketpair(int domain, int type, int protocol, int descriptors[2]);

#ifdef __cplusplus
}
#endif
