// The status menu: the platform's fixed items and those that the program inserts.
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

/// Base of represented objects; an item's creator knows the type.
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
    /// Raw NSTextAlignment of an attributed title; absent for a plain title.
    std::optional<int> alignment;
    /// Selector name, a string literal such as "remountVolume:". Empty if the item does nothing.
    std::string_view action;
    /// Performs the action.
    Target target;
    std::shared_ptr<RepresentedObject> representedObject;
    /// Whether the item has a check mark to set. On a Mac every item has.
    bool checkable = false;
    /// Shows a check mark (state 1).
    bool checked = false;
};

/// Main thread only.
class Menu {
  public:
    virtual ~Menu() = default;

    virtual void removeItemsWithTags(std::span<const int> tags) = 0;
    /// `index` counts from the top; at most the item count.
    virtual void insertItem(MenuItem item, std::size_t index) = 0;
    /// Applies to the fixed item with this action, if it exists.
    virtual void setChecked(std::string_view action, bool checked) = 0;
};

}  // namespace brisel::platform
