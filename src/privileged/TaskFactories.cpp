// Initialisers of privileged tasks, and factories that also run them.
// SPDX-License-Identifier: MIT
#include "privileged/KJPrivilegedTask.h"
#include "shared/IgnoreResult.h"

namespace brisel {

namespace {

std::shared_ptr<KJPrivilegedTask> launched(std::shared_ptr<KJPrivilegedTask> task) {
    // After a failed launch the task is not running, and waitUntilExit logs that.
    shared::ignoreResult(task->launch());
    task->waitUntilExit();
    return task;
}

}  // namespace

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::init(const platform::Platform& platform) {
    return std::shared_ptr<KJPrivilegedTask>(new KJPrivilegedTask(platform));
}

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::initWithLaunchPath(
    const platform::Platform& platform, const std::string& launchPath) {
    auto task = init(platform);
    task->setLaunchPath(launchPath);
    return task;
}

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::initWithLaunchPathArguments(
    const platform::Platform& platform, const std::string& launchPath,
    const std::vector<std::string>& arguments) {
    auto task = initWithLaunchPath(platform, launchPath);
    task->setArguments(arguments);
    return task;
}

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::initWithLaunchPathArgumentsCurrentDirectory(
    const platform::Platform& platform, const std::string& launchPath,
    const std::vector<std::string>& arguments, const std::string& currentDirectory) {
    auto task = initWithLaunchPathArguments(platform, launchPath, arguments);
    task->setCurrentDirectoryPath(currentDirectory);
    return task;
}

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPath(
    const platform::Platform& platform, const std::string& launchPath) {
    return launched(initWithLaunchPath(platform, launchPath));
}

std::shared_ptr<KJPrivilegedTask> KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArguments(
    const platform::Platform& platform, const std::string& launchPath,
    const std::vector<std::string>& arguments) {
    return launched(initWithLaunchPathArguments(platform, launchPath, arguments));
}

std::shared_ptr<KJPrivilegedTask>
KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectory(
    const platform::Platform& platform, const std::string& launchPath,
    const std::vector<std::string>& arguments, const std::string& currentDirectory) {
    return launched(initWithLaunchPathArgumentsCurrentDirectory(platform, launchPath, arguments,
                                                                currentDirectory));
}

std::shared_ptr<KJPrivilegedTask>
KJPrivilegedTask::launchedPrivilegedTaskWithLaunchPathArgumentsCurrentDirectoryAuthorization(
    const platform::Platform& platform, const std::string& launchPath,
    const std::vector<std::string>& arguments, const std::string& currentDirectory,
    platform::AuthorizationRef authorization) {
    auto task = initWithLaunchPathArgumentsCurrentDirectory(platform, launchPath, arguments,
                                                            currentDirectory);
    shared::ignoreResult(task->launchWithAuthorization(authorization));
    task->waitUntilExit();
    return task;
}

}  // namespace brisel
