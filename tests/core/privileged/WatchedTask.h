// Fixture that records a task's notifications and handler calls.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/core/privileged/RealTools.h"

namespace brisel::tests {

class WatchedTask : public PrivilegedTask {
  protected:
    std::vector<std::string> heard;
    const void* object = nullptr;
    platform::Subscription observation = mac.notificationCenter.addObserver(
        "KJPrivilegedTaskDidTerminateNotification", [this](const void* subject) {
            heard.emplace_back("notification");
            object = subject;
        });

    void watch(const Task& made) {
        made->setTerminationHandler([this](KJPrivilegedTask& ended) {
            EXPECT_FALSE(ended.isRunning());
            heard.emplace_back("handler");
        });
    }
    void launchAndEnd(const Task& made) {
        ASSERT_EQ(made->launch(), 0);
        waitForTheEnd(made->processIdentifier());
    }
};

}  // namespace brisel::tests
