// Sockets, with the Mac's numbers.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#define SOCK_STREAM 1
#define SOCK_DGRAM 2
#define AF_UNSPEC 0
#define AF_UNIX 1
#define AF_LOCAL AF_UNIX
#define AF_INET 2
#define SOL_SOCKET 0xffff
#define SO_SNDBUF 0x1001
#define SO_RCVBUF 0x1002
#define SO_NOSIGPIPE 0x1022
#define SHUT_RD 0
#define SHUT_WR 1
#define SHUT_RDWR 2
#define MSG_PEEK 0x2
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
