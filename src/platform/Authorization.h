// Authorization Services: asking for an administrator's password, and starting a tool as root.
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

/// The right to run a tool as an administrator. Not by Apple's name, which is a macro
/// (AuthorizationTags.h).
inline constexpr const char* AuthorizationRightExecute = "system.privilege.admin";

inline constexpr std::uint32_t kAuthorizationFlagDefaults = 0;
inline constexpr std::uint32_t kAuthorizationFlagInteractionAllowed = 1U << 0U;
inline constexpr std::uint32_t kAuthorizationFlagExtendRights = 1U << 1U;
inline constexpr std::uint32_t kAuthorizationFlagPreAuthorize = 1U << 4U;

/// A type of this namespace, also where the system's own of that name is known.
struct AuthorizationOpaqueRef;
/// Belongs to who created it until it is freed.
using AuthorizationRef = const AuthorizationOpaqueRef*;

/// One right: its name and `valueLength` bytes at `value`, all of which the platform may read.
struct AuthorizationItem {
    const char* name = nullptr;
    std::size_t valueLength = 0;
    const void* value = nullptr;
    std::uint32_t flags = 0;
};

/// On success the reference may be null where the platform keeps rights by process.
struct CreatedAuthorization {
    OSStatus status = errAuthorizationInternal;
    AuthorizationRef authorization = nullptr;
};

struct StartedTool {
    OSStatus status = errAuthorizationInternal;
    /// On success a stream on the tool's standard output, which the caller owns. The owner of its
    /// descriptor (fcntl, F_GETOWN) is the tool's process, a child of this one.
    std::FILE* communicationsPipe = nullptr;
};

/// Main thread only. Codes of the platform are handed on unchanged.
class Authorization {
  public:
    virtual ~Authorization() = default;

    /// An authorization without rights.
    [[nodiscard]] virtual CreatedAuthorization create(std::uint32_t flags) = 0;
    /// Obtains the right, asking the user for a password where the flags allow it; blocks while
    /// the prompt is up.
    [[nodiscard]] virtual OSStatus copyRights(AuthorizationRef authorization,
                                              const AuthorizationItem& right,
                                              std::uint32_t flags) = 0;
    /// Takes null, too.
    virtual void free(AuthorizationRef authorization, std::uint32_t flags) = 0;

    /// Whether the system offers the call below. On a Mac it is looked up by name, once.
    [[nodiscard]] virtual bool offersExecuteWithPrivileges() const = 0;
    /// Starts the tool as root. `arguments` ends with a null and leaves the tool's path out.
    [[nodiscard]] virtual StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                            const char* pathToTool,
                                                            std::uint32_t flags,
                                                            char* const* arguments) = 0;
};

}  // namespace brisel::platform
