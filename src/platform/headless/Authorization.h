// Authorization through polkit, and tools started as root by pkexec.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Authorization.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Checks the polkit action `org.brisel.run-mount-tool`, then starts the tool by pkexec. The check
/// comes first to tell a dismissed dialog from a refusal. Root needs neither.
class Authorization final : public platform::Authorization {
  public:
    /// When the descriptor `terminationSignals` becomes readable, an open password prompt is
    /// cancelled and copyRights returns errAuthorizationDenied. -1 disables this.
    explicit Authorization(platform::SystemLog& log, int terminationSignals = -1)
        : log_(log), terminationSignals_(terminationSignals) {}

    [[nodiscard]] CreatedAuthorization create(std::uint32_t flags) override;
    [[nodiscard]] OSStatus copyRights(AuthorizationRef authorization,
                                      const AuthorizationItem& right, std::uint32_t flags) override;
    void free(AuthorizationRef authorization, std::uint32_t flags) override;
    [[nodiscard]] bool offersExecuteWithPrivileges() const override;
    [[nodiscard]] StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                    const char* pathToTool, std::uint32_t flags,
                                                    char* const* arguments) override;

  private:
    [[nodiscard]] OSStatus askPolkit() const;

    platform::SystemLog& log_;
    int terminationSignals_;
};

}  // namespace brisel::platform::headless
