// The About window.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Dialogs.h"
#include "tools/dialog/Session.h"
#include "tools/dialog/Widgets.h"

namespace brisel::dialog {

namespace {

GtkWidget* newCenteredLabel(const char* text) {
    auto* label = gtk_label_new(text);
    gtk_label_set_justify(GTK_LABEL(label), GTK_JUSTIFY_CENTER);
    return label;
}

GtkWidget* newCloseButton(Session& session) {
    // GTK's own translation.
    auto* button = gtk_button_new_with_mnemonic(g_dgettext("gtk30", "_Close"));
    gtk_widget_set_can_default(button, TRUE);
    gtk_widget_set_halign(button, GTK_ALIGN_CENTER);
    session.closeWith(GTK_BUTTON(button));
    return button;
}

}  // namespace

Answer showAbout() {
    auto* window = newWindow("Brisel");
    Session session(window);
    auto* column = newColumn(Gap);
    gtk_container_set_border_width(GTK_CONTAINER(column), 3 * Gap);
    append(column, newIcon("drive-harddisk"));
    auto* name = newCenteredLabel("Brisel " BRISEL_VERSION);
    makeHeading(GTK_LABEL(name));
    append(column, name);
    append(column, newCenteredLabel("Mounts NTFS volumes read-write when you say yes."));
    append(column, newCenteredLabel("Free software under the MIT licence"));
    auto* button = newCloseButton(session);
    append(column, button);
    gtk_container_add(GTK_CONTAINER(window), GTK_WIDGET(column));
    gtk_window_set_default(window, button);
    gtk_widget_grab_focus(button);
    return session.run();
}

}  // namespace brisel::dialog
