// Brisel's core, straight on the services of a simulated Mac.
// SPDX-License-Identifier: MIT
#include "simulator/DirectProgram.h"

#include "app/Launch.h"
#include "platform/simulated/ProgramEnded.h"

namespace brisel::simulator {

void DirectProgram::start() {
    delegate_ = loadInterface(mac_, [this]() -> NTFSVolumeManager& { return sharedManager(); });
    delegate_->awakeFromNib();
}

NTFSVolumeManager& DirectProgram::sharedManager() {
    if (!manager_) manager_ = std::make_unique<NTFSVolumeManager>(mac_.platform);
    return *manager_;
}

std::vector<platform::MenuItem> DirectProgram::menuItems() const {
    const auto& items = mac_.statusMenu.items();
    return {items.begin(), items.end()};
}

void DirectProgram::choose(std::size_t index) {
    platform::common::choose(mac_.statusMenu.items().at(index));
}

void DirectProgram::respond(const platform::NotificationResponse& response) {
    mac_.userNotificationCenter.respond(response);
}

void DirectProgram::terminate() {
    mac_.application.terminate();
}

void DirectProgram::end() {
    throw platform::simulated::ProgramEnded();
}

}  // namespace brisel::simulator
