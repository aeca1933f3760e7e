// The simulated Authorization Services: administrator prompt and privileged tools.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Authorization.h"
#include "platform/simulated/DiskArbitration.h"
#include "platform/simulated/Faults.h"
#include "platform/simulated/Person.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class Authorization final : public platform::Authorization {
  public:
    Authorization(Transcript& transcript, Faults& faults, Person& person, DiskArbitration& disks);

    [[nodiscard]] CreatedAuthorization create(std::uint32_t flags) override;
    [[nodiscard]] OSStatus copyRights(AuthorizationRef authorization,
                                      const AuthorizationItem& right, std::uint32_t flags) override;
    void free(AuthorizationRef authorization, std::uint32_t flags) override;
    [[nodiscard]] bool offersExecuteWithPrivileges() const override { return !missing_; }
    [[nodiscard]] StartedTool executeWithPrivileges(AuthorizationRef authorization,
                                                    const char* pathToTool, std::uint32_t flags,
                                                    char* const* arguments) override;

    // Test controls.

    struct ToolEnd {
        int exitStatus = 0;
        /// The signal that kills the tool, or 0.
        int signal = 0;
        std::string output;
    };

    void setToolEnd(ToolEnd end) { toolEnd_ = std::move(end); }
    /// Makes the next executeWithPrivileges fail with `status`.
    void failLaunch(OSStatus status) { launchFailure_ = status; }
    /// Makes executeWithPrivileges unavailable.
    void removeExecuteWithPrivileges() { missing_ = true; }

    /// The last requested right; its value is copied, as the real service does.
    struct AskedRight {
        std::string name;
        std::string value;
        std::uint32_t itemFlags = 0;
        std::uint32_t flags = 0;
    };
    [[nodiscard]] const AskedRight& askedRight() const { return askedRight_; }
    /// Number of authorizations created and not freed.
    [[nodiscard]] std::size_t unfreed() const { return references_.size(); }

  private:
    void mountAsToolDoes(const std::vector<std::string>& command);

    Transcript& transcript_;
    Faults& faults_;
    Person& person_;
    DiskArbitration& disks_;
    ToolEnd toolEnd_;
    std::optional<OSStatus> launchFailure_;
    bool missing_ = false;
    AskedRight askedRight_;
    std::vector<std::unique_ptr<char>> references_;
};

}  // namespace brisel::platform::simulated
