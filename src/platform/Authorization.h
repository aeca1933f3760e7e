// Authorization Services: the administrator prompt, and starting a tool as root.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace brisel::platform {

/// A signed status; 0 is success (MacTypes.h).
using OSStatus = std::int32_t;

inline constexpr OSStatus errAuthorizationSuccess = 0;
inline constexpr OSStatus errAuthorizationDenied = -60005;
inline constexpr OSStatus errAuthorizationCanceled = -60006;
inline constexpr OSStatus errAuthorizationInternal = -60008;
inline constexpr OSStatus errAuthorizationToolExecuteFailure = -60031;

/// The right to run a tool as root. Apple's name for it, kAuthorizationRightExecute, is a macro
/// (AuthorizationTags.h).
inline constexpr const char* AuthorizationRightExecute = "system.privilege.admin";

inline constexpr std::uint32_t kAuthorizationFlagDefaults = 0;
inline constexpr std::uint32_t kAuthorizationFlagInteractionAllowed = 1U << 0U;
inline constexpr std::uint32_t kAuthorizationFlagExtendRights = 1U << 1U;
inline constexpr std::uint32_t kAuthorizationFlagPreAuthorize = 1U << 4U;

/// Declared in this namespace, distinct from Apple's type of this name.
struct AuthorizationOpaqueRef;
/// Owned by the caller of `create` until `free`.
using AuthorizationRef = const AuthorizationOpaqueRef*;

/// One right. The platform may read all `valueLength` bytes at `value`.
struct AuthorizationItem {
    const char* name = nullptr;
    std::size_t valueLength = 0;
    const void* value = nullptr;
    std::uint32_t flags = 0;
};

/// On success `authorization` may be null on platforms that grant rights per process.
struct CreatedAuthorization {
    OSStatus status = errAuthorizationInternal;
    AuthorizationRef authorization = nullptr;
};

struct StartedTool {
    OSStatus status = errAuthorizationInternal;
    /// On success, the tool's standard output, owned by the caller. Its descriptor's owner (fcntl,
    /// F_GETOWN) is the tool's process, a child of this one.
    std::FILE* communicationsPipe = nullptr;
};

/// Main thread only. Returns the platform's status codes unchanged.
class Authorization {
  public:
    virtual ~Authorization() = default;

    /// Creates an authorization without rights.
    [[nodiscard]] virtual CreatedAuthorization create(std::uint32_t flags) = 0;
    /// Prompts for a password if `flags` allow interaction, and blocks meanwhile.
    [[nodiscard]] virtual OSStatus copyRights(AuthorizationRef authorization,
                                              const AuthorizationItem& right,
                                              std::uint32_t flags) = 0;
    /// Accepts null.
    virtual void free(AuthorizationRef authorization, std::uint32_t flags) = 0;

    /// Whether `executeWithPrivileges` is available; resolved once on macOS.
    [[nodiscard]] virtual bool offersExecuteWithPrivileges() const = 0;
    /// Starts the tool as root. `arguments` is null-terminated and excludes the tool's path.
    [[nodiscard]] virtual StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                            const char* pathToTool,
                                                            std::uint32_t flags,
                                                            char* const* arguments) = 0;
};

}  // namespace brisel::platform
