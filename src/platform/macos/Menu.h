// The status menu, an NSMenu from the nib.
// SPDX-License-Identifier: MIT
#pragma once

#import <AppKit/AppKit.h>

#include "platform/Bundle.h"
#include "platform/macos/Owned.h"
#include "platform/Menu.h"

@class BriselMenuTarget;

namespace brisel::platform::macos {

class Menu final : public platform::Menu {
  public:
    Menu();

    /// Sets the nib's menu and its check item, and localises the items' titles, which are keys of
    /// `bundle`. Call after loading the nib, before any other function.
    void connect(NSMenu* menu, NSMenuItem* checkItem, const platform::Bundle& bundle);
    [[nodiscard]] NSMenu* menu() const { return menu_.get(); }

    void removeItemsWithTags(std::span<const int> tags) override;
    void insertItem(MenuItem item, std::size_t index) override;
    void setChecked(std::string_view action, bool checked) override;

  private:
    Owned<NSMenu*> menu_;
    Owned<NSMenuItem*> checkItem_;
    /// NSMenuItem does not retain its target.
    Owned<BriselMenuTarget*> target_;
};

/// The MenuItem behind an inserted NSMenuItem; null for an item of the nib.
const MenuItem* insertedItem(NSMenuItem* menuItem);

}  // namespace brisel::platform::macos
