// Tools started as root by pkexec, which has polkit ask for a password.
// SPDX-License-Identifier: MIT
#include "platform/headless/Authorization.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "platform/common/ToolProcess.h"
#include "shared/Descriptor.h"

namespace brisel::platform::headless {

namespace {

// pkexec's exit statuses, which the mount tool does not use.
constexpr int Dismissed = 126;
constexpr int NotAuthorized = 127;

bool isRoot() {
    return geteuid() == 0;
}

/// A program with its arguments, for execv.
class ExecArguments {
  public:
    ExecArguments(std::vector<std::string> words, char* const* furtherWords)
        : words_(std::move(words)) {
        for (; *furtherWords != nullptr; ++furtherWords)
            words_.emplace_back(*furtherWords);
        for (auto& word : words_)
            pointers_.push_back(word.data());
        pointers_.push_back(nullptr);
    }
    /// Allocates nothing, so a forked child may call it.
    void execute() const { execv(pointers_.front(), pointers_.data()); }

  private:
    std::vector<std::string> words_;
    std::vector<char*> pointers_;
};

// Exit status of a child that has ended; nullopt while it runs. It stays a zombie.
std::optional<int> exitStatusOf(pid_t child) {
    siginfo_t info{};
    if (waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
        info.si_pid == 0)
        return std::nullopt;
    return info.si_code == CLD_EXITED ? info.si_status : NotAuthorized;
}

// A process closes its descriptors some moments before it can be waited for. Generous even for slow
// machines: the caller waits for a tool that runs anyway.
std::optional<int> exitStatusSoon(pid_t child) {
    constexpr int Tries = 500;
    constexpr std::chrono::milliseconds Pause{1};
    for (int tries = 0; tries < Tries; ++tries) {
        if (const auto status = exitStatusOf(child)) return status;
        std::this_thread::sleep_for(Pause);
    }
    return std::nullopt;
}

OSStatus statusFor(std::optional<int> exitStatus) {
    if (exitStatus == Dismissed) return errAuthorizationCanceled;
    return exitStatus == NotAuthorized ? errAuthorizationDenied : errAuthorizationSuccess;
}

StartedTool refused(const StartedTool& tool, pid_t pkexec, OSStatus status) {
    std::fclose(tool.communicationsPipe);
    waitpid(pkexec, nullptr, 0);
    return {.status = status, .communicationsPipe = nullptr};
}

}  // namespace

Authorization::Authorization(int terminationSignals, std::string pkexec)
    : terminationSignals_(terminationSignals), pkexec_(std::move(pkexec)) {}

CreatedAuthorization Authorization::create(std::uint32_t /*flags*/) {
    return {.status = errAuthorizationSuccess, .authorization = nullptr};
}

OSStatus Authorization::copyRights(AuthorizationRef /*authorization*/,
                                   const AuthorizationItem& /*right*/, std::uint32_t /*flags*/) {
    return errAuthorizationSuccess;
}

void Authorization::free(AuthorizationRef /*authorization*/, std::uint32_t /*flags*/) {}

bool Authorization::offersExecuteWithPrivileges() const {
    return isRoot() || access(pkexec_.c_str(), X_OK) == 0;
}

StartedTool Authorization::executeWithPrivileges(AuthorizationRef /*authorization*/,
                                                 const char* pathToTool, std::uint32_t /*flags*/,
                                                 char* const* arguments) {
    if (isRoot()) {
        const ExecArguments command({pathToTool}, arguments);
        return common::startToolProcess([&] { command.execute(); });
    }
    std::array<int, 2> ends{-1, -1};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return {.status = errAuthorizationInternal, .communicationsPipe = nullptr};
    }
    const shared::Descriptor ours(ends[0]);
    shared::Descriptor pkexecs(ends[1]);
    const ExecArguments command({pkexec_, "--disable-internal-agent", pathToTool}, arguments);
    const auto tool = common::startToolProcess([&] {
        // Inherited by pkexec, which closes it when it starts the tool.
        fcntl(pkexecs.number(), F_SETFD, 0);
        command.execute();
    });
    pkexecs.reset();
    if (tool.status != errAuthorizationSuccess) return tool;
    const pid_t pkexec = fcntl(fileno(tool.communicationsPipe), F_GETOWN, 0);
    const auto status = waitForTool(pkexec, ours.number());
    return status == errAuthorizationSuccess ? tool : refused(tool, pkexec, status);
}

OSStatus Authorization::waitForTool(pid_t pkexec, int pkexecRuns) const {
    constexpr int NoLimit = -1;
    std::array<pollfd, 2> awaited{
        pollfd{.fd = pkexecRuns, .events = POLLIN, .revents = 0},
        pollfd{.fd = terminationSignals_, .events = POLLIN, .revents = 0}};
    while (poll(awaited.data(), awaited.size(), NoLimit) < 0 && errno == EINTR) {
    }
    if (awaited[0].revents != 0) return statusFor(exitStatusSoon(pkexec));
    kill(pkexec, SIGTERM);
    return errAuthorizationDenied;
}

}  // namespace brisel::platform::headless
