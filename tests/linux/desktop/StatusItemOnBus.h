// The fixture of the status item, with a menu to fill.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/common/Bundle.h"
#include "platform/linux/StatusItem.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::tests {

class StatusItemOnBus : public testing::Test {
  protected:
    StatusItemOnBus() {
        item_ = std::make_unique<platform::linux::StatusItem>(
            platform::linux::StatusItem::Surroundings{.bus = bus_,
                                                      .log = log_,
                                                      .bundle = bundle_,
                                                      .menu = menu_,
                                                      .mainThread = mainThread_});
    }

    GDBusConnection* bus_ = SessionBus::shared().program();
    TestLoop loop_;
    RecordedLog log_;
    platform::common::Bundle bundle_;
    platform::common::Menu menu_;
    platform::linux::CommonModesQueue mainThread_;
    std::unique_ptr<platform::linux::StatusItem> item_;
};

}  // namespace brisel::tests
