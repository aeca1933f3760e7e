// Launches, polls and describes a privileged task.
// SPDX-License-Identifier: MIT
#include "privileged/KJPrivilegedTask.h"

#include <fcntl.h>
#include <sys/wait.h>

#include <sstream>
#include <utility>

#include "platform/FileManager.h"
#include "platform/Format.h"
#include "platform/NotificationCenter.h"
#include "platform/RunLoop.h"
#include "platform/SystemLog.h"
#include "privileged/LaunchBuffers.h"

namespace brisel {

namespace {

constexpr std::chrono::milliseconds PollInterval{50};

}  // namespace

bool KJPrivilegedTask::authorizationFunctionAvailable(const platform::Platform& platform) {
    return platform.authorization.offersExecuteWithPrivileges();
}

KJPrivilegedTask::KJPrivilegedTask(const platform::Platform& platform)
    : platform_(platform), currentDirectoryPath_(platform.fileManager.currentDirectoryPath()) {}

void KJPrivilegedTask::setArguments(std::vector<std::string> arguments) {
    arguments_ = std::move(arguments);
}

void KJPrivilegedTask::setCurrentDirectoryPath(std::string path) {
    currentDirectoryPath_ = std::move(path);
}

void KJPrivilegedTask::setLaunchPath(std::string path) {
    launchPath_ = std::move(path);
}

void KJPrivilegedTask::setTerminationHandler(TerminationHandler handler) {
    terminationHandler_ = std::move(handler);
}

std::optional<platform::OSStatus> KJPrivilegedTask::statusWithoutLaunch() const {
    if (isRunning_) {
        // Deliberately success: the tool is already running.
        platform_.systemLog.log("Task already running: %@", description());
        return platform::errAuthorizationSuccess;
    }
    if (!authorizationFunctionAvailable(platform_)) {
        platform_.systemLog.log(
            "AuthorizationExecuteWithPrivileges() function not available on this system");
        return KJPrivilegedTaskErrorFunctionUnavailable;
    }
    return std::nullopt;
}

platform::OSStatus KJPrivilegedTask::launch() {
    if (const auto status = statusWithoutLaunch()) return *status;
    auto& service = platform_.authorization;
    const RightsItemValue value(launchPath_.c_str());
    const platform::AuthorizationItem right{.name = platform::AuthorizationRightExecute,
                                            .valueLength = value.length(),
                                            .value = value.bytes(),
                                            .flags = 0};
    const auto created = service.create(platform::kAuthorizationFlagDefaults);
    if (created.status != platform::errAuthorizationSuccess) return created.status;
    const auto status = service.copyRights(created.authorization, right,
                                           platform::kAuthorizationFlagInteractionAllowed |
                                               platform::kAuthorizationFlagExtendRights |
                                               platform::kAuthorizationFlagPreAuthorize);
    // Deliberately not freed on failure; the system reclaims the reference at process exit.
    if (status != platform::errAuthorizationSuccess) return status;
    const auto launched = launchWithAuthorization(created.authorization);
    service.free(created.authorization, platform::kAuthorizationFlagDefaults);
    return launched;
}

platform::OSStatus KJPrivilegedTask::launchWithAuthorization(
    platform::AuthorizationRef authorization) {
    if (const auto status = statusWithoutLaunch()) return *status;
    const ArgumentVector arguments(arguments_);
    const auto started = [&] {
        const WorkingDirectory there(currentDirectoryPath_);
        return platform_.authorization.executeWithPrivileges(authorization, launchPath_.c_str(),
                                                             platform::kAuthorizationFlagDefaults,
                                                             arguments.pointers());
    }();
    if (started.status == platform::errAuthorizationSuccess) watch(started.communicationsPipe);
    return started.status;
}

void KJPrivilegedTask::watch(std::FILE* communicationsPipe) {
    isRunning_ = true;
    // The handle owns the descriptor; fclose would close it a second time.
    const int descriptor = fileno(communicationsPipe);
    outputFileHandle_ = std::make_shared<FileHandle>(descriptor);
    processIdentifier_ = fcntl(descriptor, F_GETOWN, 0);
    // The timer keeps the task alive until the poll sees the tool's exit.
    checkStatusTimer_ = platform_.runLoop.scheduledTimer(
        PollInterval, [self = shared_from_this()] { self->checkTaskStatus(); });
}

bool KJPrivilegedTask::childIsRunning() {
    int statusWord = 0;
    const auto result = waitpid(processIdentifier_, &statusWord, WNOHANG);
    if (result == 0) return true;
    isRunning_ = false;
    terminationStatus_ = result < 0 ? UnknownTerminationStatus : WEXITSTATUS(statusWord);
    return false;
}

void KJPrivilegedTask::checkTaskStatus() {
    if (childIsRunning()) return;
    // The timer may own the only other reference.
    const auto self = shared_from_this();
    checkStatusTimer_.reset();
    platform_.notificationCenter.postNotificationName(KJPrivilegedTaskDidTerminateNotification,
                                                      this);
    // A copy: the handler may set another one.
    const auto handler = terminationHandler_;
    if (handler) handler(*this);
}

void KJPrivilegedTask::waitUntilExit() {
    if (!isRunning_) {
        platform_.systemLog.log("Task %@ is not running", inheritedDescription());
        return;
    }
    // The timer may own the only other reference.
    const auto self = shared_from_this();
    checkStatusTimer_.reset();
    // Polls without sleeping on purpose, to see the tool's exit at once.
    while (childIsRunning()) {
    }
}

void KJPrivilegedTask::terminate() {}

std::string KJPrivilegedTask::inheritedDescription() const {
    std::ostringstream text;
    text << "<KJPrivilegedTask: " << static_cast<const void*>(this) << '>';
    return text.str();
}

std::string KJPrivilegedTask::description() const {
    // Deliberately omits the current directory.
    std::string commandLine = launchPath_;
    for (const auto& argument : arguments_) {
        commandLine += platform::stringWithFormat(" '%@'", argument);
    }
    return inheritedDescription() + platform::stringWithFormat(" %@", commandLine);
}

}  // namespace brisel
