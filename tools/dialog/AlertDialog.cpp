// The alert window: message, informative text and buttons.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Dialogs.h"
#include "tools/dialog/Session.h"
#include "tools/dialog/Widgets.h"

namespace brisel::dialog {

namespace {

GtkWidget* newTexts(const AlertRequest& request) {
    auto* column = newColumn(Gap);
    auto* message = newWrappedLabel(request.message);
    makeHeading(message);
    append(column, GTK_WIDGET(message));
    if (!request.informative.empty()) {
        append(column, GTK_WIDGET(newWrappedLabel(request.informative)));
    }
    return newScroller(GTK_WIDGET(column));
}

GtkWidget* newIconAndTexts(const AlertRequest& request) {
    auto* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 2 * Gap);
    auto* icon = newIcon("dialog-warning");
    gtk_widget_set_valign(icon, GTK_ALIGN_START);
    append(GTK_BOX(row), icon);
    gtk_box_pack_end(GTK_BOX(row), newTexts(request), TRUE, TRUE, 0);
    return row;
}

GtkWidget* newButton(const std::string& title) {
    constexpr int MostLetters = 50;
    auto* button = gtk_button_new_with_label(title.c_str());
    auto* label = GTK_LABEL(gtk_bin_get_child(GTK_BIN(button)));
    gtk_label_set_ellipsize(label, PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(label, MostLetters);
    atk_object_set_name(gtk_widget_get_accessible(button), title.c_str());
    gtk_widget_set_can_default(button, TRUE);
    return button;
}

/// Horizontal with the default button at the right, or vertical with it on top if that is too wide.
GtkOrientation orientationFor(const std::vector<GtkWidget*>& buttons) {
    constexpr double Room = 0.8;
    int width = 0;
    for (auto* button : buttons) {
        int natural = 0;
        gtk_widget_show_all(button);
        gtk_widget_get_preferred_width(button, nullptr, &natural);
        width += natural + Gap;
    }
    return width > partOfScreen(Side::Width, Room) ? GTK_ORIENTATION_VERTICAL
                                                   : GTK_ORIENTATION_HORIZONTAL;
}

GtkWidget* newButtonBox(const std::vector<GtkWidget*>& buttons) {
    const auto orientation = orientationFor(buttons);
    auto* box = gtk_box_new(orientation, Gap / 2);
    if (orientation == GTK_ORIENTATION_HORIZONTAL) gtk_widget_set_halign(box, GTK_ALIGN_END);
    for (auto* button : buttons) {
        if (orientation == GTK_ORIENTATION_HORIZONTAL) {
            gtk_box_pack_end(GTK_BOX(box), button, FALSE, FALSE, 0);
        } else {
            append(GTK_BOX(box), button);
        }
    }
    return box;
}

GtkWindow* newAlertWindow() {
    auto* window = newWindow("Brisel");
    gtk_window_set_modal(window, TRUE);
    gtk_window_set_keep_above(window, TRUE);
    gtk_window_set_skip_taskbar_hint(window, FALSE);
    // An unrealized window would lose the urgency hint.
    gtk_widget_realize(GTK_WIDGET(window));
    gtk_window_set_urgency_hint(window, TRUE);
    return window;
}

/// Sets what assistive technology reads out when the window appears.
void describe(GtkWindow* window, const AlertRequest& request) {
    auto* accessible = gtk_widget_get_accessible(GTK_WIDGET(window));
    atk_object_set_role(accessible, ATK_ROLE_ALERT);
    atk_object_set_name(accessible, request.message.c_str());
    atk_object_set_description(accessible, request.informative.c_str());
}

}  // namespace

Answer showAlert(const AlertRequest& request) {
    auto* window = newAlertWindow();
    describe(window, request);
    Session session(window);
    std::vector<GtkWidget*> buttons;
    for (const auto& title : request.buttons) {
        const auto number = buttons.size();
        buttons.push_back(newButton(title));
        session.answerWith(GTK_BUTTON(buttons.back()), std::to_string(number));
    }
    auto* column = newColumn(2 * Gap);
    gtk_container_set_border_width(GTK_CONTAINER(column), 2 * Gap);
    append(column, newIconAndTexts(request));
    append(column, newButtonBox(buttons));
    gtk_container_add(GTK_CONTAINER(window), GTK_WIDGET(column));
    gtk_style_context_add_class(gtk_widget_get_style_context(buttons.front()),
                                GTK_STYLE_CLASS_SUGGESTED_ACTION);
    gtk_window_set_default(window, buttons.front());
    gtk_widget_grab_focus(buttons.front());
    return session.run();
}

}  // namespace brisel::dialog
