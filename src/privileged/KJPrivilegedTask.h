// One command-line tool, run with administrator rights after the system has asked for a password.
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

/// Status of every launch on a system that cannot start tools as administrator.
inline constexpr platform::OSStatus KJPrivilegedTaskErrorFunctionUnavailable = -70001;

/// Posted with the task as its object when the poll notices the tool's end.
inline constexpr const char* KJPrivilegedTaskDidTerminateNotification =
    "KJPrivilegedTaskDidTerminateNotification";

/// Create it, set launch path and arguments, then `launch`. On 0 either call `waitUntilExit`, or
/// let the main loop turn and wait for the notification or the termination handler. A task may be
/// launched again once it has ended. All of it happens on the calling thread.
class KJPrivilegedTask : public std::enable_shared_from_this<KJPrivilegedTask> {
  public:
    using TerminationHandler = std::function<void(KJPrivilegedTask&)>;

    /// Whether tools can be started as administrator here; the platform looks the call up by name
    /// when it is first used.
    [[nodiscard]] static bool authorizationFunctionAvailable(const platform::Platform& platform);

    // Each of these launches, waits for the tool's end and returns the task, also when the launch
    // failed: then it is not running and its termination status is 0.
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

    // A task that starts its tool in the process's current directory unless told otherwise.
    static std::shared_ptr<KJPrivilegedTask> init(const platform::Platform& platform);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPath(const platform::Platform& platform,
                                                                const std::string& launchPath);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPathArguments(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments);
    static std::shared_ptr<KJPrivilegedTask> initWithLaunchPathArgumentsCurrentDirectory(
        const platform::Platform& platform, const std::string& launchPath,
        const std::vector<std::string>& arguments, const std::string& currentDirectory);

    /// Asks for the right to run as administrator, then starts the tool. 0 also for a task that is
    /// running already; else the platform's code, or FunctionUnavailable. The launch path must be
    /// set. Blocks while the password prompt is up.
    [[nodiscard]] platform::OSStatus launch();
    /// The same with an authorization that the caller holds. Changes the process's working
    /// directory for the length of the call.
    [[nodiscard]] platform::OSStatus launchWithAuthorization(
        platform::AuthorizationRef authorization);
    /// Blocks, spinning, until the tool has ended. Posts and calls nothing.
    void waitUntilExit();
    /// Looks once whether the tool has ended; the timer's work while nobody waits.
    void checkTaskStatus();
    /// Does nothing: a tool that runs as root cannot be stopped through this class. Kept so.
    void terminate();
    /// Class and address, then the command line, its arguments in single quotes, unescaped.
    [[nodiscard]] std::string description() const;

    // What is set here takes effect at the next launch.
    [[nodiscard]] const std::vector<std::string>& arguments() const { return arguments_; }
    void setArguments(std::vector<std::string> arguments);
    [[nodiscard]] const std::string& currentDirectoryPath() const { return currentDirectoryPath_; }
    void setCurrentDirectoryPath(std::string path);
    [[nodiscard]] const std::string& launchPath() const { return launchPath_; }
    void setLaunchPath(std::string path);
    [[nodiscard]] const TerminationHandler& terminationHandler() const {
        return terminationHandler_;
    }
    /// Called once when the poll notices the end, after the notification.
    void setTerminationHandler(TerminationHandler handler);

    /// The tool's standard output; null before the first launch.
    [[nodiscard]] const std::shared_ptr<FileHandle>& outputFileHandle() const {
        return outputFileHandle_;
    }
    [[nodiscard]] bool isRunning() const { return isRunning_; }
    [[nodiscard]] pid_t processIdentifier() const { return processIdentifier_; }
    /// The tool's exit code once it has ended; 0 for a tool killed by a signal, and
    /// `UnknownTerminationStatus` where the system could not tell how it ended.
    [[nodiscard]] int terminationStatus() const { return terminationStatus_; }

    /// Not 0: what is not known must not pass for success.
    static constexpr int UnknownTerminationStatus = -1;

  private:
    explicit KJPrivilegedTask(const platform::Platform& platform);

    [[nodiscard]] std::string inheritedDescription() const;
    /// The status of a launch that ends before it began, if there is one.
    [[nodiscard]] std::optional<platform::OSStatus> statusWithoutLaunch() const;
    void watch(std::FILE* communicationsPipe);
    /// Looks once whether the child is still running; notes its end when it is not.
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
