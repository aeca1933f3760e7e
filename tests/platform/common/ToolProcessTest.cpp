// A child process with its standard input and output on a socket.
// SPDX-License-Identifier: MIT
#include "platform/common/ToolProcess.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <functional>
#include <string>

namespace brisel::tests {
namespace {

using platform::common::startToolProcess;

class ToolProcess : public testing::Test {
  protected:
    void TearDown() override {
        if (stream != nullptr) std::fclose(stream);
    }
    void run(const std::function<void()>& body) {
        const auto started = startToolProcess(body);
        ASSERT_EQ(started.status, 0);
        stream = started.communicationsPipe;
        ASSERT_NE(stream, nullptr);
        child = fcntl(fileno(stream), F_GETOWN);
    }
    int waitForTheEnd() const {
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        return status;
    }
    std::FILE* stream = nullptr;
    pid_t child = 0;
};

TEST_F(ToolProcess, OwnsItsSocket) {
    run([] { _exit(3); });
    EXPECT_GT(child, 0);
    EXPECT_EQ(WEXITSTATUS(waitForTheEnd()), 3);
}

TEST_F(ToolProcess, DoesNotLetOtherProgramsInheritItsSocket) {
    run([] { _exit(0); });
    EXPECT_NE(fcntl(fileno(stream), F_GETFD) & FD_CLOEXEC, 0);
    EXPECT_EQ(waitForTheEnd(), 0);
}

TEST_F(ToolProcess, HasItsOutputOnTheSocket) {
    run([] { _exit(write(STDOUT_FILENO, "hello", 5) == 5 ? 0 : 1); });
    EXPECT_EQ(waitForTheEnd(), 0);
    std::array<char, 16> text{};
    EXPECT_EQ(std::fread(text.data(), 1, text.size(), stream), 5U);
    EXPECT_STREQ(text.data(), "hello");
}

TEST_F(ToolProcess, HasItsInputOnTheSocket) {
    run([] {
        char character = 0;
        _exit(read(STDIN_FILENO, &character, 1) == 1 ? character : 0);
    });
    ASSERT_EQ(write(fileno(stream), "\x2A", 1), 1);
    EXPECT_EQ(WEXITSTATUS(waitForTheEnd()), 0x2A);
}

TEST_F(ToolProcess, EndsWhereItsBodyReturns) {
    run([] {});
    EXPECT_EQ(WEXITSTATUS(waitForTheEnd()), 127);
}

TEST_F(ToolProcess, DoesNotPassTheParentsEndToItsProgram) {
    // Prints its open descriptors, each between two blanks.
    constexpr auto* Script =
        "n=0; while [ $n -lt 256 ]; do [ ! -e /dev/fd/$n ] || printf ' %d ' $n; n=$((n + 1)); done";
    run([] { execl("/bin/sh", "sh", "-c", Script, nullptr); });
    EXPECT_EQ(waitForTheEnd(), 0);
    std::string listing(10000, ' ');
    listing.resize(std::fread(listing.data(), 1, listing.size(), stream));
    EXPECT_THAT(listing, testing::StartsWith(" 0  1  2 "));
    EXPECT_THAT(listing,
                testing::Not(testing::HasSubstr(" " + std::to_string(fileno(stream)) + " ")));
}

TEST_F(ToolProcess, MayDieBySignal) {
    run([] {
        std::signal(SIGTERM, SIG_DFL);
        raise(SIGTERM);
    });
    EXPECT_EQ(WTERMSIG(waitForTheEnd()), SIGTERM);
}

}  // namespace
}  // namespace brisel::tests
