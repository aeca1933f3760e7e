// The stand-in Authorization Services.
// SPDX-License-Identifier: MIT
#import "tests/macos/frameworks/Security.h"

#include <fcntl.h>
#import <Security/Authorization.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string_view>
#include <utility>
#include <vector>

#include "platform/common/ToolProcess.h"
#include "tests/macos/frameworks/World.h"

using brisel::tests::macos::complain;
using brisel::tests::macos::orders;
using brisel::tests::macos::world;
namespace platform = brisel::platform;

namespace {

platform::AuthorizationRef worldReference(AuthorizationRef authorization) {
    return reinterpret_cast<platform::AuthorizationRef>(authorization);
}

platform::StartedTool startReally(const char* path, char* const* arguments) {
    std::vector<char*> words{const_cast<char*>(path)};
    for (; *arguments != nullptr; ++arguments)
        words.push_back(*arguments);
    words.push_back(nullptr);
    return platform::common::startToolProcess([&] { execv(path, words.data()); });
}

// The real call returns on some failures without waiting for the child that it has forked.
OSStatus leaveZombie() {
    constexpr int ExitStatus = 99;
    const auto child = fork();
    if (child == 0) _exit(ExitStatus);
    siginfo_t end{};
    waitid(P_PID, static_cast<id_t>(child), &end, WEXITED | WNOWAIT);
    return errAuthorizationToolExecuteFailure;
}

// Only its address is used.
char securityFramework = 0;

}  // namespace

OSStatus AuthorizationCreate(const AuthorizationRights* /*rights*/,
                             const AuthorizationEnvironment* /*environment*/,
                             AuthorizationFlags flags, AuthorizationRef* authorization) {
    const auto created = world().authorization.create(flags);
    *authorization = reinterpret_cast<AuthorizationRef>(created.authorization);
    return created.status;
}

OSStatus AuthorizationCopyRights(AuthorizationRef authorization, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment* /*environment*/,
                                 AuthorizationFlags flags, AuthorizationRights** /*granted*/) {
    if (rights->count != 1) complain("not one right was asked for");
    const auto& item = *rights->items;
    return world().authorization.copyRights(worldReference(authorization),
                                            {.name = item.name,
                                             .valueLength = item.valueLength,
                                             .value = item.value,
                                             .flags = item.flags},
                                            flags);
}

OSStatus AuthorizationFree(AuthorizationRef authorization, AuthorizationFlags flags) {
    world().authorization.free(worldReference(authorization), flags);
    return errAuthorizationSuccess;
}

OSStatus AuthorizationExecuteWithPrivileges(AuthorizationRef authorization, const char* pathToTool,
                                            AuthorizationFlags options, char* const* arguments,
                                            FILE** communicationsPipe) {
    if (options != kAuthorizationFlagDefaults) return errAuthorizationInvalidFlags;
    if (std::exchange(orders().nextStartLeavesZombie, false)) return leaveZombie();
    const auto started = orders().startsRealTools
                             ? startReally(pathToTool, arguments)
                             : world().authorization.executeWithPrivileges(
                                   worldReference(authorization), pathToTool, options, arguments);
    // The real call is not known to set an owner of the descriptor.
    if (started.communicationsPipe != nullptr && !orders().namesOwner) {
        fcntl(fileno(started.communicationsPipe), F_SETOWN, 0);
    }
    *communicationsPipe = started.communicationsPipe;
    return started.status;
}

void* StageDlsym(void* handle, const char* symbol) {
    const bool isStart = std::string_view(symbol) == "AuthorizationExecuteWithPrivileges";
    if (isStart && !world().authorization.offersExecuteWithPrivileges()) return nullptr;
    if (handle == &securityFramework) return dlsym(RTLD_DEFAULT, symbol);
    if (isStart && orders().hidesExecuteFromDefault) return nullptr;
    return dlsym(handle, symbol);
}

void* StageDlopen(const char* path, int /*mode*/) {
    const std::string_view known = "/System/Library/Frameworks/Security.framework/Security";
    return path == known ? &securityFramework : nullptr;
}
