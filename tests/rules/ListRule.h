// The list of volumes changes only as disks come and go and operations end.
// SPDX-License-Identifier: MIT
#pragma once

#include <set>

#include "tests/rules/Rule.h"

namespace brisel::tests {

/// New records come last and one by one, for the disk that was just reported or mounted. The others
/// stay the same objects in the same order. What goes is the record of a disk that was reported, or
/// was to be unmounted.
class ListRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;
    void rest(bool /*blocked*/) override { compare(); }

  private:
    void compare();
    void checkThatTheyMightGo(const VolumeRecords& now) const;
    void checkThatTheyMightCome(const VolumeRecords& now, std::size_t kept) const;

    VolumeRecords before_;
    std::string appeared_;
    std::string disappeared_;
    std::set<std::string> unmounted_;
    std::string mounted_;
};

/// No device has two records.
class DeviceRule final : public Rule {
  public:
    using Rule::Rule;
    void rest(bool blocked) override;
};

}  // namespace brisel::tests
