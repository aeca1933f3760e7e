// The relay of a tool's output, which never blocks the tool.
// SPDX-License-Identifier: MIT
#include "platform/macos/ToolOutput.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <set>
#include <string>
#include <string_view>
#include <thread>

#include "platform/common/ToolProcess.h"
#include "privileged/FileHandle.h"

namespace brisel::tests::macos {
namespace {

using platform::macos::neverFull;

/// More than a socket's buffer holds.
std::string muchText() {
    std::string text;
    for (int number = 0; text.size() < 1000000; ++number)
        text += std::to_string(number) + '\n';
    return text + std::string("\0\xFF end", 6);
}

void sayAll(std::string_view text) {
    while (!text.empty()) {
        const auto count = write(STDOUT_FILENO, text.data(), text.size());
        if (count <= 0) _exit(99);
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

/// The relayed output of a child that writes `text` and exits with `status`.
std::FILE* toolThatSays(const std::string& text, int status = 0) {
    return neverFull(platform::common::startToolProcess([&] {
                         sayAll(text);
                         _exit(status);
                     }).communicationsPipe);
}

int exitStatusOfChild() {
    int status = 0;
    return waitpid(0, &status, 0) > 0 ? WEXITSTATUS(status) : -1;
}

std::string readAll(std::FILE* stream) {
    auto text = FileHandle(dup(fileno(stream))).readDataToEndOfFile();
    std::fclose(stream);
    return text;
}

TEST(ToolOutput, IsReadToTheByteAfterTheToolHasEnded) {
    const auto text = muchText();
    auto* const stream = toolThatSays(text, 5);
    EXPECT_EQ(exitStatusOfChild(), 5);
    EXPECT_TRUE(readAll(stream) == text);
}

TEST(ToolOutput, IsReadToTheByteWhileTheToolRuns) {
    const auto text = muchText();
    auto* const stream = toolThatSays(text);
    EXPECT_TRUE(readAll(stream) == text);
    EXPECT_EQ(exitStatusOfChild(), 0);
}

TEST(ToolOutput, IsReadToTheByteThoughSignalsComeIn) {
    struct sigaction action {};
    action.sa_handler = [](int) {};
    sigaction(SIGUSR1, &action, nullptr);
    const auto text = muchText();
    auto* const stream = toolThatSays(text);
    EXPECT_EQ(exitStatusOfChild(), 0);
    // From here on, the relaying thread receives the signals.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGUSR1);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::string read;
    for (int count = 0; count < 20; ++count) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        kill(getpid(), SIGUSR1);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        std::array<char, 5000> piece{};
        const auto size = ::read(fileno(stream), piece.data(), piece.size());
        read.append(piece.data(), static_cast<std::size_t>(size));
    }
    EXPECT_TRUE(read + readAll(stream) == text);
}

TEST(ToolOutput, EndsForAToolThatSaysNothing) {
    auto* const stream = toolThatSays("");
    EXPECT_EQ(exitStatusOfChild(), 0);
    EXPECT_EQ(readAll(stream), "");
}

TEST(ToolOutput, MayBeClosedBeforeReading) {
    auto* const stream = toolThatSays(muchText(), 4);
    std::fclose(stream);
    EXPECT_EQ(exitStatusOfChild(), 4);
    // Another thread relays the output, and may notice only now that the reader has closed it.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

TEST(ToolOutput, MayBeClosedWhileReading) {
    auto* const stream = toolThatSays(muchText(), 4);
    EXPECT_EQ(exitStatusOfChild(), 4);
    char first = 0;
    EXPECT_EQ(read(fileno(stream), &first, 1), 1);
    EXPECT_EQ(first, '0');
    std::fclose(stream);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

TEST(ToolOutput, DoesNotChangeTheHandlingOfSIGPIPE) {
    auto* const stream = toolThatSays("x");
    EXPECT_EQ(exitStatusOfChild(), 0);
    readAll(stream);
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(sigismember(&blocked, SIGPIPE), 0);
    EXPECT_EQ(std::signal(SIGPIPE, SIG_DFL), SIG_DFL);
}

/// The descriptors that a child process would inherit.
std::set<int> inheritedDescriptors() {
    constexpr int Limit = 256;
    std::set<int> found;
    for (int descriptor = 0; descriptor < Limit; ++descriptor) {
        const int flags = fcntl(descriptor, F_GETFD);
        if (flags >= 0 && (flags & FD_CLOEXEC) == 0) found.insert(descriptor);
    }
    return found;
}

TEST(ToolOutput, IsKeptFromToolsThatAreStartedLater) {
    const auto before = inheritedDescriptors();
    // Runs while the descriptors are counted.
    auto* const stream = neverFull(platform::common::startToolProcess([] {
                                       usleep(200000);
                                       _exit(0);
                                   }).communicationsPipe);
    EXPECT_EQ(inheritedDescriptors(), before);
    EXPECT_EQ(exitStatusOfChild(), 0);
    std::fclose(stream);
}

TEST(ToolOutput, IsTheToolsOwnStreamIfNoDescriptorIsFree) {
    auto* const own = platform::common::startToolProcess([] { sayAll("said"); }).communicationsPipe;
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit none{.rlim_cur = 0, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    auto* const stream = neverFull(own);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(stream, own);
    EXPECT_EQ(exitStatusOfChild(), 127);
    EXPECT_EQ(readAll(stream), "said");
}

}  // namespace
}  // namespace brisel::tests::macos
