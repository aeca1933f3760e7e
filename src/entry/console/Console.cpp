// Brisel in a terminal.
// SPDX-License-Identifier: MIT
#include "entry/console/Console.h"

#include "app/Launch.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/Process.h"

namespace brisel::console {

namespace {

constexpr const char* Help =
    "Type the number of a menu item, y or n to answer a prompt, menu or quit.";

}  // namespace

Console::Console(int input, std::ostream& output) : services_(input, output) {
    services_.bundle.setLanguages(platform::headless::userLanguages());
    services_.application.setEnd([this] { g_main_loop_quit(mainLoop_.get()); });
}

Console::~Console() = default;

void Console::run() {
    platform::headless::removeEmptyMountPoints(
        platform::headless::mountFolderIn(services_.fileManager.homeDirectory()));
    platform::install(platform::platformOf(services_));
    delegate_ = loadInterface(services_);
    const auto ending = platform::headless::whenReadable(
        services_.terminationSignals.descriptor(), [this] { services_.application.terminate(); });
    services_.terminal.print(Help);
    delegate_->awakeFromNib();
    const auto lines = services_.terminal.handleLines([this](const auto& line) { carryOut(line); });
    if (!services_.application.terminated()) g_main_loop_run(mainLoop_.get());
}

void Console::carryOut(const std::optional<std::string>& line) {
    if (services_.application.terminated()) return;
    if (!line || *line == "quit") {
        services_.application.terminate();
    } else if (*line == "menu") {
        services_.statusItem.show();
    } else if (const auto* const item = services_.statusItem.itemWithNumber(*line)) {
        platform::common::choose(*item);
    } else if (!services_.userNotificationCenter.answer(*line) && !line->empty()) {
        services_.terminal.print(Help);
    }
}

}  // namespace brisel::console
