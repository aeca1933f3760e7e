// The list of volumes changes only as disks come and go and operations end.
// SPDX-License-Identifier: MIT
#pragma once

#include <set>

#include "tests/soak/Rule.h"

namespace brisel::tests {

/// New records come last and one by one, for the disk that was just reported or mounted. The others
/// stay the same objects in the same order. What goes is the record of a disk that was reported, or
/// was to be unmounted; no device has two.
class ListRule final : public Rule {
  public:
    using Rule::Rule;
    void hear(const std::string& line) override;
    void rest(bool /*blocked*/) override { compare(); }

  private:
    void compare();
    void checkThatTheyMightGo(const VolumeRecords& now) const;
    void checkThatTheyMightCome(const VolumeRecords& now, std::size_t kept) const;
    void checkThatDevicesDiffer() const;

    VolumeRecords before_;
    std::string appeared_;
    std::string disappeared_;
    std::set<std::string> unmounted_;
    std::string mounted_;
};

}  // namespace brisel::tests
