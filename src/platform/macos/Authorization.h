// Authorization, by Authorization Services.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Authorization.h"

namespace brisel::platform::macos {

/// Finds AuthorizationExecuteWithPrivileges by dlsym, in all loaded images or else in Security's:
/// it is deprecated since macOS 10.7 and may be removed.
///
/// The system sets no owner (F_GETOWN) on the tool's pipe, so it is 0: waiting for the tool waits
/// for any child of this process group. Brisel starts no other child meanwhile, and a start reaps
/// the children that failed starts have left.
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
