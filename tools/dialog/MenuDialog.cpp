// The status menu as a window, for desktops without a tray.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Dialogs.h"
#include "tools/dialog/Session.h"
#include "tools/dialog/Widgets.h"

namespace brisel::dialog {

namespace {

GtkWidget* newTitle(const std::string& title) {
    constexpr int MostLetters = 60;
    auto* label = gtk_label_new(title.c_str());
    gtk_label_set_ellipsize(GTK_LABEL(label), PANGO_ELLIPSIZE_END);
    gtk_label_set_max_width_chars(GTK_LABEL(label), MostLetters);
    gtk_label_set_xalign(GTK_LABEL(label), 0);
    return label;
}

/// Suppresses the theme's checked style.
void hideFrame(GtkWidget* button) {
    constexpr auto* Style =
        "button:checked:not(:hover) {"
        " background: none; border-color: transparent; box-shadow: none; }";
    auto* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, Style, -1, nullptr);
    gtk_style_context_add_provider(gtk_widget_get_style_context(button),
                                   GTK_STYLE_PROVIDER(provider),
                                   GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

/// A toggle button, so that assistive technology reports it as checked.
GtkWidget* newCheckedButton() {
    auto* button = gtk_toggle_button_new();
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), TRUE);
    atk_object_set_role(gtk_widget_get_accessible(button), ATK_ROLE_CHECK_MENU_ITEM);
    hideFrame(button);
    return button;
}

GtkWidget* newItem(const MenuLine& entry) {
    const bool isChecked = entry.kind == MenuLineKind::CheckedItem;
    auto* item = isChecked ? newCheckedButton() : gtk_button_new();
    auto* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 2 * Gap);
    append(GTK_BOX(row), newTitle(entry.title));
    if (isChecked) {
        auto* mark = gtk_image_new_from_icon_name("object-select-symbolic", GTK_ICON_SIZE_BUTTON);
        gtk_box_pack_end(GTK_BOX(row), mark, FALSE, FALSE, 0);
    }
    gtk_container_add(GTK_CONTAINER(item), row);
    gtk_button_set_relief(GTK_BUTTON(item), GTK_RELIEF_NONE);
    atk_object_set_name(gtk_widget_get_accessible(item), entry.title.c_str());
    return item;
}

GtkWidget* newText(const std::string& title) {
    // Aligns with the items' titles in GTK's default theme.
    constexpr int Padding = 10;
    auto* label = newTitle(title);
    gtk_widget_set_sensitive(label, FALSE);
    g_object_set(label, "margin-start", Padding, "margin-end", Padding, "margin-top", Gap / 2,
                 "margin-bottom", Gap / 2, nullptr);
    return label;
}

GtkWidget* newRow(const MenuLine& entry, Session& session) {
    if (entry.kind == MenuLineKind::Separator) return gtk_separator_new(GTK_ORIENTATION_HORIZONTAL);
    if (entry.kind == MenuLineKind::Text) return newText(entry.title);
    auto* item = newItem(entry);
    session.answerWith(GTK_BUTTON(item), entry.id);
    return item;
}

}  // namespace

Answer showMenu(const MenuRequest& request, const std::vector<MenuLine>& entries) {
    auto* window = newWindow(request.title);
    Session session(window);
    auto* column = newColumn(Gap / 4);
    gtk_container_set_border_width(GTK_CONTAINER(column), Gap);
    for (const auto& entry : entries)
        append(column, newRow(entry, session));
    gtk_container_add(GTK_CONTAINER(window), newScroller(GTK_WIDGET(column)));
    return session.run();
}

}  // namespace brisel::dialog
