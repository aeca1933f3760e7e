// The services of brisel, in the tray of a Linux desktop.
// SPDX-License-Identifier: MIT
#include "entry/desktop/Services.h"

#include <iostream>

#include "platform/common/VisibleText.h"

namespace brisel::desktop {

namespace {

void printLogEntry(const std::string& text) {
    std::cerr << "brisel: " + platform::common::visible(text) + '\n';
}

}  // namespace

Services::Services(GDBusConnection* bus)
    : systemLog(&printLogEntry),
      singleInstance(bus, activationToken),
      notifications(bus),
      statusItem({.bus = bus,
                  .log = systemLog,
                  .bundle = bundle,
                  .menu = statusMenu,
                  .mainThread = mainThread,
                  .activationToken = activationToken}),
      workspace(bus, systemLog, activationToken) {}

Services::~Services() = default;

}  // namespace brisel::desktop
