// Shows one window until it is answered or closed.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtk/gtk.h>

#include <deque>
#include <string>

#include "tools/dialog/Protocol.h"

namespace brisel::dialog {

/// Main thread only.
class Session {
  public:
    /// Takes ownership of the window. Escape and closing it end the session.
    explicit Session(GtkWindow* window);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    /// A click on `button` ends the session with `answer`.
    void answerWith(GtkButton* button, std::string answer);
    /// A click on `button` ends the session without an answer.
    void closeWith(GtkButton* button);

    /// Shows the window, writes shownLine once it is on screen, and returns the answer. Exits the
    /// process if the reader of standard output goes away.
    Answer run();

  private:
    struct Choice {
        Session* session;
        std::string answer;
    };

    static void choose(gpointer choice);
    static gboolean tellShown(gpointer session);
    static gboolean close(gpointer session);
    static gboolean pressKey(GtkWidget* window, GdkEventKey* event, gpointer session);
    static gboolean endAlone(gint output, GIOCondition condition, gpointer data);

    GtkWindow* window_;
    /// A deque, because signal handlers hold the elements' addresses.
    std::deque<Choice> choices_;
    Answer answer_;
    bool isShown_ = false;
};

}  // namespace brisel::dialog
