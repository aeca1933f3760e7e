// Fixture of the status item tests.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "platform/common/Bundle.h"
#include "platform/desktop/StatusItem.h"
#include "tests/linux/desktop/FakeDesktop.h"

namespace brisel::tests {

class StatusItemOnBus : public testing::Test {
  protected:
    StatusItemOnBus() {
        item_ = std::make_unique<platform::desktop::StatusItem>(
            platform::desktop::StatusItem::Dependencies{.bus = bus_,
                                                        .log = log_,
                                                        .bundle = bundle_,
                                                        .menu = menu_,
                                                        .mainThread = mainThread_,
                                                        .activationToken = activationToken_});
    }

    GDBusConnection* bus_ = SessionBus::shared().program();
    TestLoop loop_;
    RecordedLog log_;
    platform::common::Bundle bundle_;
    platform::common::Menu menu_;
    platform::desktop::MainThreadQueue mainThread_;
    platform::desktop::ActivationToken activationToken_;
    std::unique_ptr<platform::desktop::StatusItem> item_;
};

}  // namespace brisel::tests
