// The status menu where the platform has no menu of its own: a list of items.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "platform/Menu.h"

namespace brisel::platform::common {

/// A deque, because the program inserts at the top: each insertion moves the few items above it,
/// not the many below.
class Menu final : public platform::Menu {
  public:
    void removeItemsWithTags(std::span<const int> tags) override;
    void insertItem(MenuItem item, std::size_t index) override;
    void setChecked(std::string_view action, bool checked) override;

    /// Puts the fixed items in, as a nib does on a Mac.
    void load(std::vector<MenuItem> items);
    [[nodiscard]] const std::deque<MenuItem>& items() const { return items_; }
    /// `changed` is called after every change of an item; none takes the last one away.
    void setChanged(std::function<void()> changed) { changed_ = std::move(changed); }
    /// Whether items came or went since this was asked last.
    [[nodiscard]] bool takeRebuilt();

  private:
    void tellChanged() const {
        if (changed_) changed_();
    }

    std::deque<MenuItem> items_;
    std::function<void()> changed_;
    bool rebuilt_ = false;
};

/// Does what choosing the item does; the item may leave its menu meanwhile.
void choose(const MenuItem& item);

}  // namespace brisel::platform::common
