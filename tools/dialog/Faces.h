// The windows that `brisel-dialog` can show.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "tools/dialog/MenuLines.h"
#include "tools/dialog/Protocol.h"
#include "tools/dialog/Request.h"

namespace brisel::dialog {

// Each shows its window until it is answered or closed; on the main thread, once GTK is there.

/// A message with buttons; Enter presses the first, which stands last. The answer is a button's
/// number from 0, in the order of the request.
Answer showAlert(const AlertRequest& request);

/// What the program is. There is no answer but that it was closed.
Answer showAbout();

/// The entries one below the other. The answer is the chosen item's ID.
Answer showMenu(const MenuRequest& request, const std::vector<MenuEntry>& entries);

}  // namespace brisel::dialog
