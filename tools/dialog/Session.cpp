// Shows one window until it is answered or closed.
// SPDX-License-Identifier: MIT
#include "tools/dialog/Session.h"

#include <glib-unix.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace brisel::dialog {

Session::Session(GtkWindow* window) : window_(window) {
    g_signal_connect_swapped(window_, "map-event", G_CALLBACK(&Session::tellShown), this);
    g_signal_connect_swapped(window_, "delete-event", G_CALLBACK(&Session::close), this);
    g_signal_connect(window_, "key-press-event", G_CALLBACK(&Session::pressKey), this);
}

Session::~Session() {
    gtk_widget_destroy(GTK_WIDGET(window_));
}

void Session::answerWith(GtkButton* button, std::string answer) {
    auto& choice = choices_.emplace_back(Choice{this, std::move(answer)});
    g_signal_connect_swapped(button, "clicked", G_CALLBACK(&Session::choose), &choice);
}

void Session::closeWith(GtkButton* button) {
    g_signal_connect_swapped(button, "clicked", G_CALLBACK(&Session::close), this);
}

Answer Session::run() {
    const auto watch = g_unix_fd_add(STDOUT_FILENO, G_IO_ERR, &Session::endAlone, nullptr);
    gtk_widget_show_all(GTK_WIDGET(window_));
    gtk_window_present(window_);
    gtk_main();
    g_source_remove(watch);
    return answer_;
}

void Session::choose(gpointer choice) {
    const auto* chosen = static_cast<Choice*>(choice);
    chosen->session->answer_ = chosen->answer;
    gtk_main_quit();
}

gboolean Session::tellShown(gpointer session) {
    auto* self = static_cast<Session*>(session);
    // Restoring a minimised window maps it again.
    if (!self->isShown_) tell(shownLine());
    self->isShown_ = true;
    return GDK_EVENT_PROPAGATE;
}

gboolean Session::close(gpointer /*session*/) {
    gtk_main_quit();
    // Stops GTK from destroying the window; the destructor does it.
    return GDK_EVENT_STOP;
}

gboolean Session::pressKey(GtkWidget* /*window*/, GdkEventKey* event, gpointer session) {
    return event->keyval == GDK_KEY_Escape ? close(session) : GDK_EVENT_PROPAGATE;
}

gboolean Session::endAlone(gint /*output*/, GIOCondition /*condition*/, gpointer /*data*/) {
    std::exit(EXIT_FAILURE);
}

}  // namespace brisel::dialog
