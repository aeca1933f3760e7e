// An option is used that the Mac's sockets do not have.
// SPDX-License-Identifier: MIT
//
// says: use of undeclared identifier 'SOCK_CLOEXEC'
#include <sys/socket.h>

int pair(int (&ends)[2]) {
    return socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends);
}
