// Widgets shared by the windows.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Widgets.h"

#include <algorithm>
#include <limits>

#include "tools/dialog/Text.h"

namespace brisel::dialog {

namespace {

/// Makes the scroller focusable, and so scrollable by keys, only if its content overflows.
void letFocusIfThereIsMore(GtkAdjustment* adjustment, gpointer scroller) {
    const bool isMore =
        gtk_adjustment_get_upper(adjustment) > gtk_adjustment_get_page_size(adjustment);
    gtk_widget_set_can_focus(GTK_WIDGET(scroller), isMore ? TRUE : FALSE);
}

}  // namespace

GtkWindow* newWindow(const std::string& title) {
    auto* window = GTK_WINDOW(gtk_window_new(GTK_WINDOW_TOPLEVEL));
    gtk_window_set_title(window, title.c_str());
    gtk_window_set_type_hint(window, GDK_WINDOW_TYPE_HINT_DIALOG);
    gtk_window_set_position(window, GTK_WIN_POS_CENTER);
    gtk_window_set_resizable(window, FALSE);
    atk_object_set_name(gtk_widget_get_accessible(GTK_WIDGET(window)), title.c_str());
    return window;
}

int partOfScreen(Side side, double part) {
    auto* display = gdk_display_get_default();
    int smallest = std::numeric_limits<int>::max();
    for (int number = 0; number < gdk_display_get_n_monitors(display); ++number) {
        GdkRectangle area{};
        gdk_monitor_get_workarea(gdk_display_get_monitor(display, number), &area);
        smallest = std::min(smallest, side == Side::Width ? area.width : area.height);
    }
    return static_cast<int>(smallest * part);
}

GtkBox* newColumn(int spacing) {
    return GTK_BOX(gtk_box_new(GTK_ORIENTATION_VERTICAL, spacing));
}

void append(GtkBox* box, GtkWidget* child) {
    gtk_box_pack_start(box, child, FALSE, FALSE, 0);
}

GtkLabel* newWrappedLabel(const std::string& text) {
    constexpr int MostLetters = 60;
    constexpr double RoomForText = 0.7;
    constexpr int WidthOfLetter = 9;
    // Bounds the layout time of long texts.
    constexpr std::size_t LongestText = 2000;
    auto* label = GTK_LABEL(gtk_label_new(shortened(text, LongestText).c_str()));
    gtk_label_set_line_wrap(label, TRUE);
    gtk_label_set_line_wrap_mode(label, PANGO_WRAP_WORD_CHAR);
    gtk_label_set_max_width_chars(
        label, std::min(MostLetters, partOfScreen(Side::Width, RoomForText) / WidthOfLetter));
    gtk_label_set_xalign(label, 0);
    return label;
}

void makeHeading(GtkLabel* label) {
    constexpr double Larger = 1.2;
    auto* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_weight_new(PANGO_WEIGHT_BOLD));
    pango_attr_list_insert(attributes, pango_attr_scale_new(Larger));
    gtk_label_set_attributes(label, attributes);
    pango_attr_list_unref(attributes);
}

GtkWidget* newScroller(GtkWidget* content) {
    constexpr double RoomForContent = 0.6;
    auto* widget = gtk_scrolled_window_new(nullptr, nullptr);
    auto* scroller = GTK_SCROLLED_WINDOW(widget);
    gtk_scrolled_window_set_policy(scroller, GTK_POLICY_NEVER, GTK_POLICY_AUTOMATIC);
    gtk_scrolled_window_set_propagate_natural_width(scroller, TRUE);
    gtk_scrolled_window_set_propagate_natural_height(scroller, TRUE);
    gtk_scrolled_window_set_max_content_height(scroller,
                                               partOfScreen(Side::Height, RoomForContent));
    gtk_container_add(GTK_CONTAINER(widget), content);
    gtk_widget_set_can_focus(widget, FALSE);
    g_signal_connect(gtk_scrolled_window_get_vadjustment(scroller), "changed",
                     G_CALLBACK(&letFocusIfThereIsMore), widget);
    return widget;
}

GtkWidget* newIcon(const char* other) {
    auto* theme = gtk_icon_theme_get_default();
    const bool isInstalled = gtk_icon_theme_has_icon(theme, IconName) == TRUE;
    const char* name = isInstalled ? IconName : other;
    auto* icon = gtk_image_new_from_icon_name(name, GTK_ICON_SIZE_DIALOG);
    atk_object_set_name(gtk_widget_get_accessible(icon), "Brisel");
    return icon;
}

}  // namespace brisel::dialog
