// One window's time on the screen.
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
    /// Owns the window from now on. Escape and closing the window end the session.
    explicit Session(GtkWindow* window);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session();

    /// Lets a click on the button end the session with this answer.
    void answerWith(GtkButton* button, std::string answer);
    /// Lets a click on the button close the window.
    void closeWith(GtkButton* button);

    /// Shows the window, tells so when it is on the screen, and returns how the session ended. It
    /// ends the process if whoever reads its standard output goes away.
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
    /// Their addresses are handed out.
    std::deque<Choice> choices_;
    Answer answer_;
    bool isShown_ = false;
};

}  // namespace brisel::dialog
