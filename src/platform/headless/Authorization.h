// Tools started as root by pkexec, which has polkit ask for a password.
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/Authorization.h"

namespace brisel::platform::headless {

/// pkexec asks for the tool's polkit action, org.brisel.run-mount-tool. An own check beforehand
/// would ask twice where polkit keeps no authorization. Root needs no pkexec.
class Authorization final : public platform::Authorization {
  public:
    /// When the descriptor `terminationSignals` becomes readable, an open password prompt is
    /// cancelled and counts as refused. -1 disables this.
    explicit Authorization(int terminationSignals = -1, std::string pkexec = "/usr/bin/pkexec");

    [[nodiscard]] CreatedAuthorization create(std::uint32_t flags) override;
    /// Succeeds without a prompt: executeWithPrivileges prompts.
    [[nodiscard]] OSStatus copyRights(AuthorizationRef authorization,
                                      const AuthorizationItem& right, std::uint32_t flags) override;
    void free(AuthorizationRef authorization, std::uint32_t flags) override;
    [[nodiscard]] bool offersExecuteWithPrivileges() const override;
    /// Blocks while pkexec asks for a password. errAuthorizationCanceled if the prompt is closed,
    /// errAuthorizationDenied if the password is wrong or there is no prompt.
    [[nodiscard]] StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                    const char* pathToTool, std::uint32_t flags,
                                                    char* const* arguments) override;

  private:
    /// Waits until pkexec has started the tool or has ended, as `pkexecRuns` at end of file tells.
    [[nodiscard]] OSStatus waitForTool(pid_t pkexec, int pkexecRuns) const;

    int terminationSignals_;
    std::string pkexec_;
};

}  // namespace brisel::platform::headless
