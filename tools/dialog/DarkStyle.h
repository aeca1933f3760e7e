// GTK's dark style as the desktop's Settings portal says.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

namespace brisel::dialog {

/// Follows the portal's colour scheme while it lives; GTK 3 does not by itself on GNOME. Without a
/// portal, and unless that prefers dark, the theme decides. Main thread, with GTK initialized.
class DarkStyle {
  public:
    DarkStyle();
    DarkStyle(const DarkStyle&) = delete;
    DarkStyle& operator=(const DarkStyle&) = delete;
    ~DarkStyle();

  private:
    /// Null without a session bus.
    GDBusProxy* portal_;
};

}  // namespace brisel::dialog
