// `brisel-dialog`: shows a window for Brisel and writes the user's choice.
// SPDX-License-Identifier: MIT
#include <gtk/gtk.h>

#include <algorithm>
#include <iostream>
#include <span>

#include "tools/dialog/DarkStyle.h"
#include "tools/dialog/Dialogs.h"
#include "tools/dialog/Widgets.h"

namespace {

using namespace brisel::dialog;

enum ExitStatus { Succeeded = 0, Misused = 2, NoDisplay = 3 };

bool openDisplay() {
    // Keeps GIO from starting gvfs, which is not needed.
    g_setenv("GIO_USE_VFS", "local", TRUE);
    // Desktops match the window to its desktop entry by this name.
    g_set_prgname(IconName);
    g_set_application_name("Brisel");
    // Passes no arguments: GTK would take a text that looks like one of its options.
    if (gtk_init_check(nullptr, nullptr) == FALSE) return false;
    gtk_window_set_default_icon_name(IconName);
    return true;
}

struct Showing {
    Answer operator()(const AlertRequest& request) const { return showAlert(request); }
    Answer operator()(const AboutRequest& /*request*/) const { return showAbout(); }
    Answer operator()(const MenuRequest& request) const {
        return showMenu(request, readMenuLines(std::cin));
    }
};

}  // namespace

int main(int argumentCount, char** words) {
    const auto request =
        dialogRequestFrom({words + 1, static_cast<std::size_t>(std::max(argumentCount - 1, 0))});
    if (!request) {
        std::cerr << Usage;
        return Misused;
    }
    if (!openDisplay()) {
        std::cerr << "brisel-dialog: cannot open a display.\n";
        return NoDisplay;
    }
    const DarkStyle style;
    tell(answerLine(std::visit(Showing{}, *request)));
    return Succeeded;
}
