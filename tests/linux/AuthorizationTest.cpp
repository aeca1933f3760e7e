// The administrator's password prompt, by a program in pkexec's place.
// SPDX-License-Identifier: MIT
#include "platform/headless/Authorization.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "tests/linux/TemporaryFolder.h"

namespace brisel::platform::headless {

namespace {

namespace fs = std::filesystem;

/// Drops root's rights while it lives, because root needs no pkexec.
class UserWithoutRights {
  public:
    UserWithoutRights() { EXPECT_TRUE(before_ != 0 || seteuid(UnprivilegedUID) == 0); }
    UserWithoutRights(const UserWithoutRights&) = delete;
    UserWithoutRights& operator=(const UserWithoutRights&) = delete;
    ~UserWithoutRights() { EXPECT_EQ(seteuid(before_), 0); }

  private:
    static constexpr uid_t UnprivilegedUID = 65534;
    uid_t before_ = geteuid();
};

class ThePasswordPrompt : public testing::Test {
  protected:
    ThePasswordPrompt() {
        EXPECT_EQ(pipe2(terminationSignals_.data(), O_CLOEXEC), 0);
        fs::permissions(folder_.path(), fs::perms(0755));
    }
    ~ThePasswordPrompt() override {
        for (const int end : terminationSignals_)
            close(end);
    }
    /// Starts the tool `/tool a b` by a pkexec that runs `script`.
    StartedTool start(const std::string& script) {
        std::ofstream(pkexec_) << "#!/bin/bash\n" << script << '\n';
        fs::permissions(pkexec_, fs::perms(0755));
        const std::array<char*, 3> arguments{first_.data(), second_.data(), nullptr};
        const UserWithoutRights user;
        Authorization authorization(terminationSignals_[0], pkexec_);
        EXPECT_TRUE(authorization.offersExecuteWithPrivileges());
        EXPECT_EQ(authorization.copyRights(nullptr, {}, 0), errAuthorizationSuccess);
        return authorization.executeWithPrivileges(nullptr, "/tool", 0, arguments.data());
    }
    static std::string outputOf(const StartedTool& tool) {
        const pid_t child = fcntl(fileno(tool.communicationsPipe), F_GETOWN, 0);
        std::array<char, 100> text{};
        const bool hasLine = std::fgets(text.data(), text.size(), tool.communicationsPipe);
        std::fclose(tool.communicationsPipe);
        EXPECT_EQ(waitpid(child, nullptr, 0), child);
        return hasLine ? text.data() : "";
    }

    tests::TemporaryFolder folder_;
    std::string pkexec_ = folder_.path() + "/pkexec";
    std::string first_ = "a";
    std::string second_ = "b";
    std::array<int, 2> terminationSignals_{};
};

TEST_F(ThePasswordPrompt, IsPkexecsAlone) {
    const auto tool = start("echo \"$@\"");
    ASSERT_EQ(tool.status, errAuthorizationSuccess);
    EXPECT_EQ(outputOf(tool), "--disable-internal-agent /tool a b\n");
}

// pkexec closes the descriptors that it does not pass on.
constexpr const char* CloseFiles =
    "for file in /proc/$$/fd/*; do n=${file##*/}; [ $n -gt 2 ] && eval \"exec $n>&-\"; done\n";

TEST_F(ThePasswordPrompt, EndsWhenPkexecStartsTheTool) {
    const auto tool = start(CloseFiles + std::string("read -r line; echo \"$line\""));
    ASSERT_EQ(tool.status, errAuthorizationSuccess);
    EXPECT_EQ(write(fileno(tool.communicationsPipe), "runs\n", strlen("runs\n")), 5);
    EXPECT_EQ(outputOf(tool), "runs\n");
}

TEST_F(ThePasswordPrompt, IsDismissedOrRefused) {
    EXPECT_EQ(start("exit 126").status, errAuthorizationCanceled);
    EXPECT_EQ(start("exit 127").status, errAuthorizationDenied);
    EXPECT_EQ(start("kill $$").status, errAuthorizationDenied);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(ThePasswordPrompt, IsDismissedOnASlowMachine) {
    EXPECT_EQ(start(CloseFiles + std::string("sleep 0.2; exit 126")).status,
              errAuthorizationCanceled);
}

TEST_F(ThePasswordPrompt, IsCancelledOnTermination) {
    EXPECT_EQ(write(terminationSignals_[1], "x", 1), 1);
    EXPECT_EQ(start("exec sleep 60").status, errAuthorizationDenied);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
}

}  // namespace

}  // namespace brisel::platform::headless
