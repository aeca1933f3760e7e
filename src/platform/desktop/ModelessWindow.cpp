// A modeless window, shown by brisel-dialog.
// SPDX-License-Identifier: MIT
#include "platform/desktop/ModelessWindow.h"

#include <utility>

#include "platform/headless/MainContext.h"

namespace brisel::platform::desktop {

void ModelessWindow::show(const std::vector<std::string>& arguments, const std::string& input,
                          Pressed pressed) {
    reading_.reset();
    window_ = std::make_unique<DialogProcess>(program_, arguments, input);
    pressed_ = std::move(pressed);
    if (window_->descriptor() >= 0) {
        reading_ = headless::whenReadable(window_->descriptor(), [this] { takeIn(); });
    } else {
        end();
    }
}

void ModelessWindow::takeIn() {
    window_->takeIn();
    if (window_->pressed() || window_->descriptor() < 0) end();
}

void ModelessWindow::end() {
    const auto number = window_->pressed();
    if (!number && !window_->wasShown()) log_.log("%@ could not show a window.", program_.path);
    reading_.reset();
    window_.reset();
    const auto pressed = std::exchange(pressed_, nullptr);
    if (number && pressed) pressed(*number);
}

}  // namespace brisel::platform::desktop
