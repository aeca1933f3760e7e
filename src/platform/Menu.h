// The status item's menu: fixed items that the platform provides, and those the program inserts.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brisel::platform {

/// What a menu item stands for; whoever made the item knows the type.
class RepresentedObject {
  public:
    RepresentedObject() = default;
    RepresentedObject(const RepresentedObject&) = delete;
    RepresentedObject& operator=(const RepresentedObject&) = delete;
    virtual ~RepresentedObject() = default;
};

struct MenuItem {
    using Target = std::function<void(const MenuItem& sender)>;

    int tag = 0;
    bool separator = false;
    std::string title;
    /// NSTextAlignment's raw value over the whole title, where the title is an attributed one.
    std::optional<int> alignment;
    /// The selector's name, a literal such as "remountVolume:"; empty for an item that does
    /// nothing.
    std::string_view action;
    /// Carries the action out; the item itself is the sender.
    Target target;
    std::shared_ptr<RepresentedObject> representedObject;
    /// State 1, a check mark.
    bool checked = false;
};

/// Main thread only.
class Menu {
  public:
    virtual ~Menu() = default;

    /// Takes out every item that carries one of these tags; the others stay in order.
    virtual void removeItemsWithTags(std::span<const int> tags) = 0;
    /// Puts the item before the one at `index`, counted from the top; at most the item count.
    virtual void insertItem(MenuItem item, std::size_t index) = 0;
    /// Sets or clears the check mark of the fixed item with this action, if there is one.
    virtual void setChecked(std::string_view action, bool checked) = 0;
};

}  // namespace brisel::platform
