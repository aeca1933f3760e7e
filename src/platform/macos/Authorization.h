// Authorization Services.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Authorization.h"

namespace brisel::platform::macos {

/// The call that starts a tool as root has been deprecated since macOS 10.7 and may be gone one
/// day, so it is looked up by name in all that is loaded.
///
/// A descriptor's owner is 0 here, as the system sets none: waiting for the tool is waiting for any
/// child of this process's group. The program starts no other child while it waits.
class Authorization final : public platform::Authorization {
  public:
    [[nodiscard]] CreatedAuthorization create(std::uint32_t flags) override;
    [[nodiscard]] OSStatus copyRights(AuthorizationRef authorization,
                                      const AuthorizationItem& right, std::uint32_t flags) override;
    void free(AuthorizationRef authorization, std::uint32_t flags) override;
    [[nodiscard]] bool offersExecuteWithPrivileges() const override;
    [[nodiscard]] StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                    const char* pathToTool, std::uint32_t flags,
                                                    char* const* arguments) override;
};

}  // namespace brisel::platform::macos
