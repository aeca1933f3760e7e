// The preferences of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <variant>

#include "platform/simulated/Transcript.h"
#include "platform/UserDefaults.h"

namespace brisel::platform::simulated {

class UserDefaults final : public platform::UserDefaults {
  public:
    /// A string stands for any type that the program does not write.
    using Value = std::variant<bool, StringArray, std::string>;

    explicit UserDefaults(Transcript& transcript) : transcript_(transcript) {}

    void registerDefaults(const std::map<std::string, bool>& defaults) override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    [[nodiscard]] StringArray stringArrayForKey(std::string_view key) const override;
    void setBool(std::string_view key, bool value) override;
    void setStringArray(std::string_view key, StringArray value) override;
    void synchronize() override;

    // Test controls.
    /// Stores a preference without a line in the transcript.
    void store(const std::string& key, Value value);
    /// `KEY = VALUE` for each stored key, in alphabetical order.
    [[nodiscard]] std::vector<std::string> stored() const;
    /// Number of calls of stringArrayForKey.
    [[nodiscard]] std::size_t listReads() const { return listReads_; }

  private:
    Transcript& transcript_;
    std::map<std::string, Value, std::less<>> stored_;
    std::map<std::string, bool, std::less<>> registered_;
    mutable std::size_t listReads_ = 0;
};

}  // namespace brisel::platform::simulated
