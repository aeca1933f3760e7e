// Starts a child process with its standard input and output on a socket.
// SPDX-License-Identifier: MIT
#include "platform/common/ToolProcess.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

#include "shared/Descriptor.h"

namespace brisel::platform::common {

namespace {

constexpr int BodyReturned = 127;

[[noreturn]] void runChild(int socket, const std::function<void()>& body) {
    dup2(socket, STDIN_FILENO);
    dup2(socket, STDOUT_FILENO);
    body();
    _exit(BodyReturned);
}

StartedTool failure() {
    return {.status = errAuthorizationToolExecuteFailure, .communicationsPipe = nullptr};
}

// Creates two connected close-on-exec sockets; false on failure.
bool makeSockets(std::array<int, 2>& ends) {
#ifdef SOCK_CLOEXEC
    return socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) == 0;
#else
    // macOS has no SOCK_CLOEXEC.
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) return false;
    for (const int end : ends)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    return true;
#endif
}

}  // namespace

StartedTool startToolProcess(const std::function<void()>& body) {
    std::array<int, 2> ends{};
    if (!makeSockets(ends)) return failure();
    shared::Descriptor ours(ends[0]);
    const shared::Descriptor theirs(ends[1]);
    const pid_t child = fork();
    if (child == 0) runChild(theirs.number(), body);
    std::FILE* const stream = child > 0 ? fdopen(ours.number(), "r+") : nullptr;
    if (stream == nullptr) return failure();
    fcntl(ours.release(), F_SETOWN, child);
    return {.status = errAuthorizationSuccess, .communicationsPipe = stream};
}

}  // namespace brisel::platform::common
