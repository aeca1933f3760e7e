// Widgets shared by the windows.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

#include <string>

namespace brisel::dialog {

/// The icon's name in the theme.
inline constexpr const char* IconName = "org.brisel.Brisel";

/// Space between related widgets in pixels; groups are twice that apart.
inline constexpr int Gap = 12;

/// Centred, as large as its content, not resizable.
GtkWindow* newWindow(const std::string& title);

/// partOfScreen returns `part` (0 to 1) of this side of the smallest monitor's work area, in
/// pixels.
enum class Side { Width, Height };
int partOfScreen(Side side, double part);

GtkBox* newColumn(int spacing);
void append(GtkBox* box, GtkWidget* child);

/// A label that wraps to fit the screen, and is cut if very long.
GtkLabel* newWrappedLabel(const std::string& text);

void makeHeading(GtkLabel* label);

/// Grows with its content to part of the screen's height, then scrolls.
GtkWidget* newScroller(GtkWidget* content);

/// Brisel's icon, or the icon `other` if that is not installed.
GtkWidget* newIcon(const char* other);

}  // namespace brisel::dialog
