// What the tests of all adapters share: a simulated Mac behind the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/SimulatedProgram.h"

#import "tests/macos/frameworks/Prefix.h"
#include "tests/macos/frameworks/World.h"

namespace brisel::tests::macos {

/// Sees to it after each test that no framework was misused and that no object was lost.
class AdapterTest : public testing::Test {
  protected:
    AdapterTest();
    ~AdapterTest() override;

    ScriptedPerson person;
    platform::simulated::Mac mac{person};

    [[nodiscard]] const std::vector<std::string>& lines() const { return mac.transcript.lines(); }
    /// Those of them that begin with `log: `, without it.
    [[nodiscard]] std::vector<std::string> logLines() const;
    /// Lets the main loop turn in this mode for this time, or until `done`.
    static void turn(NSString* mode, NSTimeInterval seconds, const bool* done = nullptr);

  private:
    NSAutoreleasePool* pool_;
};

}  // namespace brisel::tests::macos
