// A tool's output that waits for its reader, and never lets the tool wait.
// SPDX-License-Identifier: MIT
#include "platform/macos/ToolOutput.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "platform/common/ToolProcess.h"
#include "privileged/FileHandle.h"
#import "tests/macos/adapters/AdapterTest.h"

namespace brisel::tests::macos {
namespace {

using platform::macos::neverFull;

/// More than any socket holds.
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

/// A child that says this and ends so; its output through the function under test.
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

class ToolOutput : public testing::Test {
  protected:
    ToolOutput() {
        // What the system does by itself; GNUstep changes it.
        std::signal(SIGPIPE, SIG_DFL);
    }
};

TEST_F(ToolOutput, IsReadToTheByteAfterTheToolHasEnded) {
    const auto text = muchText();
    auto* const stream = toolThatSays(text, 5);
    EXPECT_EQ(exitStatusOfChild(), 5);
    EXPECT_TRUE(readAll(stream) == text);
}

TEST_F(ToolOutput, IsReadToTheByteWhileTheToolRuns) {
    const auto text = muchText();
    auto* const stream = toolThatSays(text);
    EXPECT_TRUE(readAll(stream) == text);
    EXPECT_EQ(exitStatusOfChild(), 0);
}

TEST_F(ToolOutput, EndsForAToolThatSaysNothing) {
    auto* const stream = toolThatSays("");
    EXPECT_EQ(exitStatusOfChild(), 0);
    EXPECT_EQ(readAll(stream), "");
}

TEST_F(ToolOutput, LetsItsReaderGoEarly) {
    auto* const stream = toolThatSays(muchText(), 4);
    std::fclose(stream);
    EXPECT_EQ(exitStatusOfChild(), 4);
    // The output is carried over in another thread, which may find its reader gone only now.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

TEST_F(ToolOutput, LetsItsReaderGoInTheMiddle) {
    auto* const stream = toolThatSays(muchText(), 4);
    EXPECT_EQ(exitStatusOfChild(), 4);
    char first = 0;
    EXPECT_EQ(read(fileno(stream), &first, 1), 1);
    EXPECT_EQ(first, '0');
    std::fclose(stream);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
}

TEST_F(ToolOutput, DoesNotChangeHowTheProcessTakesABrokenPipe) {
    auto* const stream = toolThatSays("x");
    EXPECT_EQ(exitStatusOfChild(), 0);
    readAll(stream);
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    EXPECT_EQ(sigismember(&blocked, SIGPIPE), 0);
    EXPECT_EQ(std::signal(SIGPIPE, SIG_DFL), SIG_DFL);
}

TEST_F(ToolOutput, IsTheToolsOwnStreamWhereThereAreNoDescriptorsLeft) {
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
