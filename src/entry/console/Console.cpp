// Brisel in a terminal.
// SPDX-License-Identifier: MIT
#include "entry/console/Console.h"

#include "app/MainMenu.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/Process.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::console {

namespace {

constexpr const char* Help =
    "Type the number of a menu item, y or n to answer a prompt, menu or quit.";

}  // namespace

Console::Console(int input, std::ostream& output)
    : terminal_(input, output, terminationSignals_.descriptor()) {
    bundle_.setLanguages(platform::headless::userLanguages());
    application_.setEnd([this] { g_main_loop_quit(mainLoop_.get()); });
}

Console::~Console() = default;

void Console::run() {
    platform::headless::removeEmptyMountPoints(
        platform::headless::mountFolderIn(fileManager_.homeDirectory()));
    platform::install(platform_);
    AppDelegate::initialize(platform_);
    delegate_ = std::make_shared<AppDelegate>(platform_);
    statusMenu_.load(mainMenuItems(delegate_, platform_));
    application_.setTerminationStep([this] { delegate_->applicationWillTerminate(); });
    const auto ending = platform::headless::whenReadable(terminationSignals_.descriptor(),
                                                         [this] { application_.terminate(); });
    terminal_.print(Help);
    delegate_->awakeFromNib();
    const auto lines = terminal_.handleLines([this](const auto& line) { carryOut(line); });
    if (!application_.terminated()) g_main_loop_run(mainLoop_.get());
}

void Console::carryOut(const std::optional<std::string>& line) {
    if (application_.terminated()) return;
    if (!line || *line == "quit") {
        application_.terminate();
    } else if (*line == "menu") {
        statusItem_.show();
    } else if (const auto* const item = statusItem_.itemWithNumber(*line)) {
        platform::common::choose(*item);
    } else if (!userNotificationCenter_.answer(*line) && !line->empty()) {
        terminal_.print(Help);
    }
}

}  // namespace brisel::console
