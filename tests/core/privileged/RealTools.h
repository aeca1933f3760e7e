// An authorization service that records its calls and starts real tools.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/common/ToolProcess.h"
#include "privileged/KJPrivilegedTask.h"
#include "tests/support/PlatformWith.h"
#include "tests/support/RunningProgram.h"

namespace brisel::tests {

class RealTools final : public platform::Authorization {
  public:
    platform::OSStatus createStatus = 0;
    platform::OSStatus copyStatus = 0;
    platform::OSStatus executeStatus = 0;

    std::vector<std::string> calls;
    /// The arguments of the last call.
    std::string rightName;
    std::size_t valueLength = 0;
    std::vector<char> value;
    std::uint32_t itemFlags = 99;
    std::uint32_t copyFlags = 0;
    std::uint32_t createFlags = 99;
    std::uint32_t freeFlags = 99;
    std::uint32_t executeFlags = 99;
    platform::AuthorizationRef usedAuthorization = nullptr;
    const char* toolPointer = nullptr;
    std::vector<std::string> arguments;
    std::string workingDirectory;
    /// The task's end of the socket to the tool.
    int descriptor = -1;

    platform::CreatedAuthorization create(std::uint32_t flags) override {
        calls.emplace_back("create");
        createFlags = flags;
        return {.status = createStatus, .authorization = own()};
    }
    platform::OSStatus copyRights(platform::AuthorizationRef /*authorization*/,
                                  const platform::AuthorizationItem& right,
                                  std::uint32_t flags) override {
        calls.emplace_back("copyRights");
        rightName = right.name;
        valueLength = right.valueLength;
        const auto* const bytes = static_cast<const char*>(right.value);
        value.assign(bytes, bytes + right.valueLength);
        itemFlags = right.flags;
        copyFlags = flags;
        return copyStatus;
    }
    void free(platform::AuthorizationRef authorization, std::uint32_t flags) override {
        EXPECT_EQ(authorization, own());
        calls.emplace_back("free");
        freeFlags = flags;
    }
    bool offersExecuteWithPrivileges() const override { return true; }
    platform::StartedTool executeWithPrivileges(platform::AuthorizationRef authorization,
                                                const char* pathToTool, std::uint32_t flags,
                                                char* const* vector) override {
        calls.emplace_back("execute");
        usedAuthorization = authorization;
        toolPointer = pathToTool;
        executeFlags = flags;
        workingDirectory = std::filesystem::current_path();
        arguments.clear();
        for (const auto* next = vector; *next != nullptr; ++next)
            arguments.emplace_back(*next);
        if (executeStatus != 0) return {.status = executeStatus, .communicationsPipe = nullptr};
        return started(pathToTool, vector);
    }

    /// An authorization that the caller owns.
    [[nodiscard]] platform::AuthorizationRef own() const {
        return reinterpret_cast<platform::AuthorizationRef>(&createStatus);
    }
    /// Writes to the tool's standard input.
    void tell(const std::string& text) const {
        ASSERT_EQ(write(descriptor, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

  private:
    platform::StartedTool started(const char* pathToTool, char* const* vector) {
        std::vector<char*> words{const_cast<char*>(pathToTool)};
        for (const auto* next = vector; *next != nullptr; ++next)
            words.push_back(*next);
        words.push_back(nullptr);
        const auto tool =
            platform::common::startToolProcess([&] { execv(pathToTool, words.data()); });
        if (tool.communicationsPipe != nullptr) descriptor = fileno(tool.communicationsPipe);
        return tool;
    }
};

/// Fixture for tasks that start real tools.
class PrivilegedTask : public RunningProgram {
  protected:
    using Task = std::shared_ptr<KJPrivilegedTask>;

    RealTools tools;
    const platform::Platform withTools = platformWith(mac.platform, {.authorization = &tools});

    Task task(const std::string& path, std::vector<std::string> arguments = {}) const {
        return KJPrivilegedTask::initWithLaunchPathArguments(withTools, path, arguments);
    }
    Task shell(const std::string& command) const { return task("/bin/sh", {"-c", command}); }
    /// A tool that reads one line, then exits with `status`.
    Task waitingTool(int status = 0) const {
        return shell("read line; exit " + std::to_string(status));
    }
    static void run(const Task& task) {
        ASSERT_EQ(task->launch(), 0);
        task->waitUntilExit();
    }
    static std::string outputOf(const Task& task) {
        run(task);
        return task->outputFileHandle()->readDataToEndOfFile();
    }
    /// Waits until the child has exited, without reaping it.
    static void waitForTheEnd(pid_t child) {
        siginfo_t info{};
        ASSERT_EQ(waitid(P_PID, static_cast<id_t>(child), &info, WEXITED | WNOWAIT), 0);
    }
    void passTime(int milliseconds) {
        mac.mainLoop.advanceClock(std::chrono::milliseconds(milliseconds));
    }
};

}  // namespace brisel::tests
