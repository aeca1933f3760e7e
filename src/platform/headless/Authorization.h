// Asking for an administrator's password and starting tools as root, through polkit.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Authorization.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// The right is polkit's action `org.brisel.run-mount-tool`, asked for first, so that a dismissed
/// dialog and a refusal are told apart; the tool is then started by pkexec. Root needs neither.
class Authorization final : public platform::Authorization {
  public:
    /// Once `interruption` can be read, a password prompt that is still up is taken away and counts
    /// as refused; -1 for none.
    explicit Authorization(platform::SystemLog& log, int interruption = -1)
        : log_(log), terminationSignals_(interruption) {}

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
