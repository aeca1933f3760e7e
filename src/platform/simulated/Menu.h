// The status menu of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/common/Menu.h"

namespace brisel::platform::simulated {

/// Knows whether it was rebuilt, for the transcript.
class Menu final : public common::Menu {
  public:
    void removeItemsWithTags(std::span<const int> tags) override {
        common::Menu::removeItemsWithTags(tags);
        rebuilt_ = true;
    }
    void insertItem(MenuItem item, std::size_t index) override {
        common::Menu::insertItem(std::move(item), index);
        rebuilt_ = true;
    }

    /// True if items were inserted or removed since the last call.
    [[nodiscard]] bool takeRebuilt() { return std::exchange(rebuilt_, false); }

  private:
    bool rebuilt_ = false;
};

}  // namespace brisel::platform::simulated
