// The adapter of Authorization Services, and the tools that it starts.
// SPDX-License-Identifier: MIT
#include "platform/macos/Authorization.h"

#include <fcntl.h>
#include <sys/wait.h>

#include "privileged/FileHandle.h"
#include "privileged/KJPrivilegedTask.h"
#import "tests/macos/adapters/AdapterTest.h"
#include "tests/support/PlatformWith.h"

namespace brisel::tests::macos {
namespace {

using platform::AuthorizationRef;
using platform::OSStatus;

class AuthorizationAdapter : public AdapterTest {
  protected:
    platform::macos::Authorization adapter;

    [[nodiscard]] AuthorizationRef created() { return adapter.create(0).authorization; }
    [[nodiscard]] OSStatus ask(std::uint32_t flags = 0) {
        const platform::AuthorizationItem right{
            .name = "system.privilege.admin", .valueLength = 4, .value = "v\0lu", .flags = 0};
        return adapter.copyRights(created(), right, flags);
    }
    [[nodiscard]] platform::StartedTool started(std::vector<const char*> words,
                                                std::uint32_t flags = 0) {
        const char* const path = words.front();
        words.push_back(nullptr);
        return adapter.executeWithPrivileges(created(), path, flags,
                                             const_cast<char* const*>(words.data() + 1));
    }
    /// The exit status of the next child to exit; -1 if there is no child.
    static int nextExitStatus() {
        int status = 0;
        return waitpid(0, &status, 0) > 0 ? WEXITSTATUS(status) : -1;
    }
};

TEST_F(AuthorizationAdapter, CreatesReferencesAndFreesThem) {
    const auto first = adapter.create(0);
    const auto second = adapter.create(0);
    EXPECT_EQ(first.status, 0);
    EXPECT_NE(first.authorization, second.authorization);
    EXPECT_EQ(mac.authorization.unfreed(), 2U);
    adapter.free(first.authorization, 0);
    adapter.free(second.authorization, 0);
    EXPECT_EQ(mac.authorization.unfreed(), 0U);
}

TEST_F(AuthorizationAdapter, ReturnsTheStatusOfAFailedCreation) {
    mac.faults.failCall(1);
    const auto refused = adapter.create(0);
    EXPECT_EQ(refused.status, platform::errAuthorizationInternal);
    EXPECT_EQ(refused.authorization, nullptr);
}

TEST_F(AuthorizationAdapter, AsksForOneRightWithItsValue) {
    EXPECT_EQ(ask(0x13), 0);
    const auto& asked = mac.authorization.askedRight();
    EXPECT_EQ(asked.name, "system.privilege.admin");
    EXPECT_EQ(asked.value, std::string("v\0lu", 4));
    EXPECT_EQ(asked.itemFlags, 0U);
    EXPECT_EQ(asked.flags, 0x13U);
}

TEST_F(AuthorizationAdapter, ReturnsTheStatusOfARefusedRight) {
    for (const OSStatus status : {-60006, -60005, -60007, 1}) {
        person.whenPasswordIsAsked = [status] { return status; };
        EXPECT_EQ(ask(), status);
    }
}

TEST_F(AuthorizationAdapter, ReturnsTheStatusOfAFailedStart) {
    mac.authorization.failLaunch(-12345);
    const auto refused = started({"/bin/tool"});
    EXPECT_EQ(refused.status, -12345);
    EXPECT_EQ(refused.communicationsPipe, nullptr);
    EXPECT_EQ(started({"/bin/tool"}, 1).status, -60011);
}

TEST_F(AuthorizationAdapter, GivesAStreamWithoutAnOwner) {
    mac.authorization.setToolEnd({.exitStatus = 7, .output = "said"});
    const auto tool = started({"/bin/tool"});
    EXPECT_EQ(fcntl(fileno(tool.communicationsPipe), F_GETOWN, 0), 0);
    EXPECT_EQ(nextExitStatus(), 7);
    EXPECT_EQ(FileHandle(dup(fileno(tool.communicationsPipe))).readDataToEndOfFile(), "said");
    std::fclose(tool.communicationsPipe);
}

TEST_F(AuthorizationAdapter, GivesAStreamWithTheOwnerThatTheSystemNames) {
    orders().namesOwner = true;
    const auto tool = started({"/bin/tool"});
    const auto owner = fcntl(fileno(tool.communicationsPipe), F_GETOWN, 0);
    EXPECT_GT(owner, 0);
    EXPECT_EQ(waitpid(owner, nullptr, 0), owner);
    std::fclose(tool.communicationsPipe);
}

TEST_F(AuthorizationAdapter, LetsAToolEndWithItsOutputUnread) {
    orders().startsRealTools = true;
    const auto tool =
        started({"/bin/sh", "-c", "head -c 1000000 /dev/zero | tr '\\0' x; printf end; exit 6"});
    // The tool ends although its output is unread.
    EXPECT_EQ(nextExitStatus(), 6);
    const auto output = FileHandle(dup(fileno(tool.communicationsPipe))).readDataToEndOfFile();
    std::fclose(tool.communicationsPipe);
    EXPECT_TRUE(output == std::string(1000000, 'x') + "end");
}

using AuthorizationAdapterDeathTest = AuthorizationAdapter;

// In a process of its own, because the look-up happens once per process.
TEST_F(AuthorizationAdapterDeathTest, FindsTheCallThatOnlyItsFrameworkHas) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    orders().hidesExecuteFromDefault = true;
    EXPECT_EXIT(
        std::_Exit(adapter.offersExecuteWithPrivileges() ? started({"/bin/tool"}).status : 1),
        testing::ExitedWithCode(0), "");
}

class PrivilegedTaskOnAMac : public AuthorizationAdapter {
  protected:
    const platform::Platform withAdapter = platformWith(mac.platform, {.authorization = &adapter});

    [[nodiscard]] std::shared_ptr<KJPrivilegedTask> task() const {
        return KJPrivilegedTask::initWithLaunchPath(withAdapter, "/bin/tool");
    }
};

TEST_F(PrivilegedTaskOnAMac, GetsTheExitStatusWithoutAProcessID) {
    mac.authorization.setToolEnd({.exitStatus = 3, .output = "no such volume"});
    const auto made = task();
    EXPECT_EQ(made->launch(), 0);
    EXPECT_EQ(made->processIdentifier(), 0);
    made->waitUntilExit();
    EXPECT_EQ(made->terminationStatus(), 3);
    EXPECT_EQ(made->outputFileHandle()->readDataToEndOfFile(), "no such volume");
}

TEST_F(PrivilegedTaskOnAMac, GetsItsOwnExitStatusAfterAFailedStart) {
    orders().nextStartLeavesZombie = true;
    EXPECT_EQ(task()->launch(), platform::errAuthorizationToolExecuteFailure);
    mac.authorization.setToolEnd({.exitStatus = 3, .output = ""});
    const auto made = task();
    EXPECT_EQ(made->launch(), 0);
    made->waitUntilExit();
    EXPECT_EQ(made->terminationStatus(), 3);
    EXPECT_EQ(nextExitStatus(), -1);
}

TEST_F(PrivilegedTaskOnAMac, AsksForThePasswordAndFreesWhatItUsed) {
    const auto made = task();
    EXPECT_EQ(made->launch(), 0);
    made->waitUntilExit();
    EXPECT_EQ(mac.authorization.askedRight().name, "system.privilege.admin");
    EXPECT_EQ(mac.authorization.askedRight().flags, 0x13U);
    EXPECT_EQ(mac.authorization.unfreed(), 0U);
}

TEST_F(PrivilegedTaskOnAMac, LeavesARefusedReferenceToTheSystem) {
    person.whenPasswordIsAsked = [] { return -60006; };
    EXPECT_EQ(task()->launch(), -60006);
    EXPECT_EQ(mac.authorization.unfreed(), 1U);
}

}  // namespace
}  // namespace brisel::tests::macos
