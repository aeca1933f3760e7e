// Buffers a tool's output, so that the tool never blocks on writing it.
// SPDX-License-Identifier: MIT
#include "platform/macos/ToolOutput.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <string>
#include <string_view>
#include <system_error>
#include <thread>

namespace brisel::platform::macos {

namespace {

constexpr std::size_t PieceSize = 4096;

std::string readToEnd(int descriptor) {
    std::string text;
    std::array<char, PieceSize> piece{};
    while (true) {
        const auto count = read(descriptor, piece.data(), piece.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return text;
        text.append(piece.data(), static_cast<std::size_t>(count));
    }
}

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const auto count = write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

// A closed reader must not end the process. SIGPIPE goes to the writing thread.
void blockBrokenPipeSignal() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

void carryOver(std::FILE* toolOutput, int destination) {
    blockBrokenPipeSignal();
    writeAll(destination, readToEnd(fileno(toolOutput)));
    close(destination);
    std::fclose(toolOutput);
}

// Sockets, not a pipe, which has no owner on macOS. Close-on-exec, because a tool that inherited
// them would keep the reader from end of file. False on failure.
bool makeSockets(std::array<int, 2>& ends) {
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) != 0) return false;
    for (const int end : ends)
        fcntl(end, F_SETFD, FD_CLOEXEC);
    return true;
}

// Failures are negative, and would name a process group.
void setOwner(int descriptor, pid_t owner) {
    if (owner > 0) fcntl(descriptor, F_SETOWN, owner);
}

bool startCarrying(std::FILE* toolOutput, int destination) {
    try {
        std::thread(carryOver, toolOutput, destination).detach();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

}  // namespace

std::FILE* neverFull(std::FILE* toolOutput) {
    std::array<int, 2> ends{};
    if (!makeSockets(ends)) return toolOutput;
    setOwner(ends[0], fcntl(fileno(toolOutput), F_GETOWN, 0));
    std::FILE* const stream = fdopen(ends[0], "r+");
    if (stream != nullptr && startCarrying(toolOutput, ends[1])) return stream;
    if (stream != nullptr) {
        std::fclose(stream);
    } else {
        close(ends[0]);
    }
    close(ends[1]);
    return toolOutput;
}

}  // namespace brisel::platform::macos
