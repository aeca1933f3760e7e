// Authorization, by Authorization Services.
// SPDX-License-Identifier: MIT
#import "platform/macos/Authorization.h"

#include <dlfcn.h>
#import <Security/Authorization.h>
#include <sys/wait.h>

#include "platform/macos/ToolOutput.h"

namespace brisel::platform::macos {

namespace {

using ExecuteWithPrivileges = ::OSStatus (*)(::AuthorizationRef, const char*, ::AuthorizationFlags,
                                             char* const*, std::FILE**);

void* executeSymbol() {
    constexpr const char* Name = "AuthorizationExecuteWithPrivileges";
    if (void* const found = dlsym(RTLD_DEFAULT, Name)) return found;
    // macOS 26.2 is reported to find it this way only.
    void* const framework =
        dlopen("/System/Library/Frameworks/Security.framework/Security", RTLD_LAZY);
    return framework != nullptr ? dlsym(framework, Name) : nullptr;
}

ExecuteWithPrivileges executeFunction() {
    // The result never changes.
    static const auto function = reinterpret_cast<ExecuteWithPrivileges>(executeSymbol());
    return function;
}

// After some failures the system's call leaves a child that it has not waited for. Waiting for any
// child, as for a tool without a process ID, would take the exit status of that one.
void reapLeftChildren() {
    while (waitpid(0, nullptr, WNOHANG) > 0) {
    }
}

::AuthorizationRef systemReference(AuthorizationRef authorization) {
    return reinterpret_cast<::AuthorizationRef>(authorization);
}

}  // namespace

CreatedAuthorization Authorization::create(std::uint32_t flags) {
    ::AuthorizationRef reference = nullptr;
    const auto status = AuthorizationCreate(nullptr, nullptr, flags, &reference);
    return {.status = status, .authorization = reinterpret_cast<AuthorizationRef>(reference)};
}

OSStatus Authorization::copyRights(AuthorizationRef authorization, const AuthorizationItem& right,
                                   std::uint32_t flags) {
    ::AuthorizationItem item{.name = right.name,
                             .valueLength = right.valueLength,
                             // The system copies the value and never writes to it.
                             .value = const_cast<void*>(right.value),
                             .flags = right.flags};
    const AuthorizationRights rights{.count = 1, .items = &item};
    return AuthorizationCopyRights(systemReference(authorization), &rights, nullptr, flags,
                                   nullptr);
}

void Authorization::free(AuthorizationRef authorization, std::uint32_t flags) {
    AuthorizationFree(systemReference(authorization), flags);
}

bool Authorization::offersExecuteWithPrivileges() const {
    return executeFunction() != nullptr;
}

StartedTool Authorization::executeWithPrivileges(AuthorizationRef authorization,
                                                 const char* pathToTool, std::uint32_t flags,
                                                 char* const* arguments) {
    const auto execute = executeFunction();
    if (execute == nullptr) return {};
    reapLeftChildren();
    std::FILE* stream = nullptr;
    const auto status =
        execute(systemReference(authorization), pathToTool, flags, arguments, &stream);
    if (status != ::errAuthorizationSuccess) {
        return {.status = status, .communicationsPipe = nullptr};
    }
    return {.status = status, .communicationsPipe = neverFull(stream)};
}

}  // namespace brisel::platform::macos
