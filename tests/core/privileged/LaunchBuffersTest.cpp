// The buffers of one privileged launch, and the file handle of its output.
// SPDX-License-Identifier: MIT
#include "privileged/LaunchBuffers.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <thread>

#include "privileged/FileHandle.h"

namespace brisel::tests {
namespace {

TEST(RightsItemValue, BeginsWithThePointerAndIsAsLongAsThePath) {
    for (const char* const path :
         {"/", "/sbin/mo", "/sbin/mount_ntfs", "/a/much/longer/path/of/x"}) {
        const RightsItemValue value(path);
        EXPECT_EQ(value.length(), std::strlen(path));
        const auto shared = std::min(sizeof path, value.length());
        EXPECT_EQ(std::memcmp(value.bytes(), &path, shared), 0) << path;
    }
}

// Reads every byte, so that the address sanitizer reports a length beyond the buffer.
TEST(RightsItemValue, CanBeReadToItsDescribedEnd) {
    const std::string path(4000, 'x');
    const RightsItemValue value(path.c_str());
    const std::string copy(static_cast<const char*>(value.bytes()), value.length());
    EXPECT_EQ(copy.size(), 4000U);
}

TEST(RightsItemValue, IsNotNullForAnEmptyPath) {
    const RightsItemValue value("");
    EXPECT_EQ(value.length(), 0U);
    EXPECT_NE(value.bytes(), nullptr);
}

TEST(ArgumentVector, EndsWithANull) {
    const ArgumentVector vector({"-o", "", "a b"});
    EXPECT_STREQ(vector.pointers()[0], "-o");
    EXPECT_STREQ(vector.pointers()[1], "");
    EXPECT_STREQ(vector.pointers()[2], "a b");
    EXPECT_EQ(vector.pointers()[3], nullptr);
}

TEST(ArgumentVector, HoldsNothingButTheNullForNoArguments) {
    EXPECT_EQ(ArgumentVector({}).pointers()[0], nullptr);
}

TEST(ArgumentVector, CopiesFormatsAsTheyStand) {
    const ArgumentVector vector({"%s%n%@", std::string(5000, 'y')});
    EXPECT_STREQ(vector.pointers()[0], "%s%n%@");
    EXPECT_EQ(std::strlen(vector.pointers()[1]), 5000U);
}

TEST(WorkingDirectory, IsChangedAndChangedBack) {
    const auto before = std::filesystem::current_path();
    {
        const WorkingDirectory there("/");
        EXPECT_EQ(std::filesystem::current_path(), "/");
    }
    EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST(WorkingDirectory, IsChangedBackToWhereItWasThatTime) {
    const WorkingDirectory outer("/usr");
    { const WorkingDirectory inner("/"); }
    EXPECT_EQ(std::filesystem::current_path(), "/usr");
}

TEST(FileHandle, ReadsAllThatWasWritten) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const std::string text = std::string(30000, 'z') + '\0' + "end";
    ASSERT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    close(ends[1]);
    const FileHandle handle(ends[0]);
    EXPECT_EQ(handle.readDataToEndOfFile(), text);
    EXPECT_EQ(handle.readDataToEndOfFile(), "");
}

TEST(FileHandle, ReadsOnAfterASignal) {
    struct sigaction quiet {};
    struct sigaction before {};
    quiet.sa_handler = [](int) {};
    ASSERT_EQ(sigaction(SIGUSR1, &quiet, &before), 0);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    std::thread writer([end = ends[1], reader = pthread_self()] {
        for (int signals = 0; signals < 20; ++signals) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
            pthread_kill(reader, SIGUSR1);
        }
        EXPECT_EQ(write(end, "late", 4), 4);
        close(end);
    });
    EXPECT_EQ(FileHandle(ends[0]).readDataToEndOfFile(), "late");
    writer.join();
    sigaction(SIGUSR1, &before, nullptr);
}

TEST(FileHandle, ClosesItsDescriptor) {
    const int descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    { const FileHandle handle(descriptor); }
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST(FileHandle, EndsAtAnError) {
    const FileHandle handle(open("/", O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(handle.readDataToEndOfFile(), "");
}

}  // namespace
}  // namespace brisel::tests
