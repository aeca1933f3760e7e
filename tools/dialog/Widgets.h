// What the windows have in common.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

#include <string>

namespace brisel::dialog {

/// The name under which the program's icon is looked up.
inline constexpr const char* IconName = "org.brisel.Brisel";

/// The space between things that belong together, in pixels; what does not has twice that.
inline constexpr int Gap = 12;

/// A window in the middle of the screen that takes no more of it than its content needs.
GtkWindow* newWindow(const std::string& title);

/// Part of the smallest monitor's height or width, in pixels.
enum class Side { Width, Height };
int partOfScreen(Side side, double part);

/// A box with its children one below the other.
GtkBox* newColumn(int spacing);
void append(GtkBox* box, GtkWidget* child);

/// A text in lines no longer than fits the screen.
GtkLabel* newWrappedLabel(const std::string& text);

/// Makes it bold and somewhat larger.
void makeHeading(GtkLabel* label);

/// A frame that grows with its content as far as the screen has room, and scrolls from there on.
GtkWidget* newScroller(GtkWidget* content);

/// The program's icon, or the `other` one where it is not installed.
GtkWidget* newIcon(const char* other);

}  // namespace brisel::dialog
