// Runs a command-line tool as root after the system's administrator prompt.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Authorization.h"
#include "platform/Platform.h"
#include "platform/Subscription.h"
#include "privileged/FileHandle.h"

namespace brisel {

/// Launch status where the system cannot start tools as root.
inline constexpr platform::OSStatus KJPrivilegedTaskErrorFunctionUnavailable = -70001;

/// Posted, with the task as object, when the poll sees the tool's exit.
inline constexpr const char* KJPrivilegedTaskDidTerminateNotification =
    "KJPrivilegedTaskDidTerminateNotification";

/// After `launch` returns 0, call `waitUntilExit`, or keep the main loop running until the
/// notification or the termination handler arrives. Reusable after the tool's exit. Main thread
/// only.
class KJPrivilegedTask : public std::enable_shared_from_this<KJPrivilegedTask> {
  public:
    using TerminationHandler = std::function<void(KJPrivilegedTask&)>;

    /// Whether the platform offers AuthorizationExecuteWithPrivileges.
    [[nodiscard]] static bool authorizationFunctionAvailable(const platform::Platform& platform);

    // Each launches the tool, waits for its exit and returns the task. If the launch failed, the
    // task is not running and its termination status is 0.
    static std::shared_ptr<KJPrivilegedTask> launchedPrivilegedTaskWithLaunchPath(
        const platform::Platform& platform, const std::string& launchPath);
    static std::shared_ptr<KJPrivilegedTask> launchedPrivilegedTaskWithLaunchPathArguments(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments);
    static std::shared_ptr<KJPrivilegedTask>
    launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectory(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments, const std::string& currentDirectory);
    static std::shared_ptr<KJPrivilegedTask>
    launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectoryAuthorization(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments, const std::string& currentDirectory,
        platform::AuthorizationRef authorization);

    // The working directory defaults to the process's at creation.
    static std::shared_ptr<KJPrivilegedTask> init(const platform::Platform& platform);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPath(const platform::Platform& platform,
                                                                const std::string& launchPath);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPathArguments(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPathArgumentsCurrentDirectory(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments, const std::string& currentDirectory);

    /// Obtains the administrator right, then starts the tool. Returns 0 on success or if already
    /// running, else the platform's code or KJPrivilegedTaskErrorFunctionUnavailable. Needs a
    /// launch path. Blocks during the password prompt.
    [[nodiscard]] platform::OSStatus launch();
    /// Starts the tool with the caller's `authorization`; returns the codes of `launch`. Changes
    /// the process's working directory during the call.
    [[nodiscard]] platform::OSStatus launchWithAuthorization(
        platform::AuthorizationRef authorization);
    /// Blocks, polling without sleep, until the tool exits. Neither posts nor calls the handler.
    void waitUntilExit();
    /// Polls once; called by the timer every 50 ms. After the tool's exit, posts the notification,
    /// then calls the termination handler.
    void checkTaskStatus();
    /// Deliberately does nothing: a user's process may not signal a tool that runs as root.
    void terminate();
    /// Class name, address, launch path, and the arguments in single quotes, unescaped.
    [[nodiscard]] std::string description() const;

    // Arguments and paths take effect at the next launch.
    [[nodiscard]] const std::vector<std::string>& arguments() const { return arguments_; }
    void setArguments(std::vector<std::string> arguments);
    [[nodiscard]] const std::string& currentDirectoryPath() const { return currentDirectoryPath_; }
    void setCurrentDirectoryPath(std::string path);
    [[nodiscard]] const std::string& launchPath() const { return launchPath_; }
    void setLaunchPath(std::string path);
    [[nodiscard]] const TerminationHandler& terminationHandler() const {
        return terminationHandler_;
    }
    /// Called by the poll, once per launch, after the notification.
    void setTerminationHandler(TerminationHandler handler);

    /// The tool's standard output; null before the first successful launch.
    [[nodiscard]] const std::shared_ptr<FileHandle>& outputFileHandle() const {
        return outputFileHandle_;
    }
    [[nodiscard]] bool isRunning() const { return isRunning_; }
    [[nodiscard]] pid_t processIdentifier() const { return processIdentifier_; }
    /// The tool's exit code; 0 if a signal killed it, `UnknownTerminationStatus` if waitpid failed.
    [[nodiscard]] int terminationStatus() const { return terminationStatus_; }

    /// Not 0, so that an unknown status is not taken for success.
    static constexpr int UnknownTerminationStatus = -1;

  private:
    explicit KJPrivilegedTask(const platform::Platform& platform);

    [[nodiscard]] std::string inheritedDescription() const;
    /// The launch status if the task is already running or cannot be launched.
    [[nodiscard]] std::optional<platform::OSStatus> statusWithoutLaunch() const;
    void watch(std::FILE* communicationsPipe);
    /// Polls once; stores the termination status after the exit.
    [[nodiscard]] bool childIsRunning();

    const platform::Platform platform_;
    platform::Subscription checkStatusTimer_;
    bool isRunning_ = false;
    pid_t processIdentifier_ = 0;
    int terminationStatus_ = 0;
    std::vector<std::string> arguments_;
    std::string currentDirectoryPath_;
    std::string launchPath_;
    std::shared_ptr<FileHandle> outputFileHandle_;
    TerminationHandler terminationHandler_;
};

}  // namespace brisel
