// The windows that `brisel-dialog` can show.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "tools/dialog/DialogRequest.h"
#include "tools/dialog/MenuLines.h"
#include "tools/dialog/Protocol.h"

namespace brisel::dialog {

// Each blocks until its window is answered or closed. Main thread, with GTK initialized.

/// Enter presses the first button. Returns the index of the pressed button.
Answer showAlert(const AlertRequest& request);

/// Returns no answer.
Answer showAbout();

/// Returns the ID of the chosen item.
Answer showMenu(const MenuRequest& request, const std::vector<MenuLine>& entries);

}  // namespace brisel::dialog
