// The simulated administrator prompt and tools.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Authorization.h"

#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <string_view>
#include <utility>

#include "platform/common/ToolProcess.h"

namespace brisel::platform::simulated {

namespace {

std::string quotedIfNeeded(const std::string& word) {
    return word.find_first_of(" \t\"") == std::string::npos ? word : '"' + word + '"';
}

std::vector<std::string> commandLine(const char* path, char* const* arguments) {
    std::vector<std::string> command{path};
    for (; *arguments != nullptr; ++arguments)
        command.emplace_back(*arguments);
    return command;
}

// Runs in the child. Forks a writer for output beyond the socket's buffer, because the reader waits
// for the tool's exit before it reads.
void print(std::string_view output) {
    const auto sent = send(STDOUT_FILENO, output.data(), output.size(), MSG_DONTWAIT);
    if (sent > 0) output.remove_prefix(static_cast<std::size_t>(sent));
    if (output.empty() || fork() != 0) return;
    std::signal(SIGPIPE, SIG_IGN);
    while (!output.empty()) {
        const auto more = send(STDOUT_FILENO, output.data(), output.size(), 0);
        if (more <= 0) break;
        output.remove_prefix(static_cast<std::size_t>(more));
    }
    _exit(0);
}

// Runs in the child.
void endAs(const Authorization::ToolEnd& end) {
    print(end.output);
    if (end.signal != 0) {
        std::signal(end.signal, SIG_DFL);
        raise(end.signal);
    }
    _exit(end.exitStatus);
}

}  // namespace

Authorization::Authorization(Transcript& transcript, Faults& faults, Person& person,
                             DiskArbitration& disks)
    : transcript_(transcript), faults_(faults), person_(person), disks_(disks) {}

CreatedAuthorization Authorization::create(std::uint32_t /*flags*/) {
    if (faults_.strikes("createAuthorization")) {
        return {.status = errAuthorizationInternal, .authorization = nullptr};
    }
    const auto& reference = references_.emplace_back(std::make_unique<char>());
    return {.status = errAuthorizationSuccess,
            .authorization = reinterpret_cast<AuthorizationRef>(reference.get())};
}

OSStatus Authorization::copyRights(AuthorizationRef /*authorization*/,
                                   const AuthorizationItem& right, std::uint32_t flags) {
    const auto* const value = static_cast<const char*>(right.value);
    askedRight_ = {.name = right.name,
                   .value = std::string(value, right.valueLength),
                   .itemFlags = right.flags,
                   .flags = flags};
    if (faults_.strikes("copyRights")) return errAuthorizationDenied;
    transcript_.record("authorize: %@", askedRight_.name);
    return person_.answerPasswordPrompt(askedRight_.name);
}

void Authorization::free(AuthorizationRef authorization, std::uint32_t /*flags*/) {
    std::erase_if(references_, [authorization](const auto& reference) {
        return reinterpret_cast<AuthorizationRef>(reference.get()) == authorization;
    });
}

StartedTool Authorization::executeWithPrivileges(AuthorizationRef /*authorization*/,
                                                 const char* pathToTool, std::uint32_t /*flags*/,
                                                 char* const* arguments) {
    if (faults_.strikes("execute")) {
        return {.status = errAuthorizationToolExecuteFailure, .communicationsPipe = nullptr};
    }
    if (const auto failure = std::exchange(launchFailure_, std::nullopt)) {
        return {.status = *failure, .communicationsPipe = nullptr};
    }
    const auto command = commandLine(pathToTool, arguments);
    std::string event = "run:";
    for (const auto& word : command)
        event += ' ' + quotedIfNeeded(word);
    transcript_.write(event);
    if (toolEnd_.exitStatus == 0 && toolEnd_.signal == 0) mountAsToolDoes(command);
    return common::startToolProcess([&end = toolEnd_] { endAs(end); });
}

void Authorization::mountAsToolDoes(const std::vector<std::string>& command) {
    constexpr std::string_view DevicePrefix = "/dev/";
    constexpr std::size_t WordCount = 5;
    constexpr std::size_t DeviceWord = 3;
    if (command.size() != WordCount || !command[DeviceWord].starts_with(DevicePrefix)) return;
    disks_.mountBehind(command[DeviceWord].substr(DevicePrefix.size()), command.back());
}

}  // namespace brisel::platform::simulated
