// A menu as a list of items, for platforms without a menu of their own.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "platform/common/Signal.h"
#include "platform/Menu.h"

namespace brisel::platform::common {

/// A deque: the program inserts near the top, and an insertion moves the items above only.
class Menu : public platform::Menu {
  public:
    void removeItemsWithTags(std::span<const int> tags) override;
    void insertItem(MenuItem item, std::size_t index) override;
    void setChecked(std::string_view action, bool checked) override;

    /// Replaces the items, as loading a nib does on a Mac.
    void load(std::vector<MenuItem> items);
    [[nodiscard]] const std::deque<MenuItem>& items() const { return items_; }
    /// Calls `changed` after every change of an item.
    [[nodiscard]] Subscription observeChanges(std::function<void()> changed) {
        return changed_.subscribe(std::move(changed));
    }

  private:
    std::deque<MenuItem> items_;
    Signal<> changed_;
};

/// Performs the item's action. The item may leave its menu meanwhile.
void choose(const MenuItem& item);

}  // namespace brisel::platform::common
