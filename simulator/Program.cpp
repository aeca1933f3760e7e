// Brisel itself, running on a simulated Mac.
// SPDX-License-Identifier: MIT
#include "simulator/Program.h"

#include "app/MainMenu.h"

namespace brisel::simulator {

void Program::start() {
    AppDelegate::initialize(mac_.platform);
    delegate_ = std::make_shared<AppDelegate>(
        mac_.platform, [this]() -> NTFSVolumeManager& { return sharedManager(); });
    mac_.statusMenu.load(mainMenuItems(delegate_, mac_.platform));
    mac_.application.setTerminationStep(
        [delegate = delegate_] { delegate->applicationWillTerminate(); });
    delegate_->awakeFromNib();
}

NTFSVolumeManager& Program::sharedManager() {
    if (!manager_) manager_ = std::make_unique<NTFSVolumeManager>(mac_.platform);
    return *manager_;
}

}  // namespace brisel::simulator
