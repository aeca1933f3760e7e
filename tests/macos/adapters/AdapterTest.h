// Fixture of the adapter tests: a simulated Mac behind the stand-in frameworks.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "tests/support/Matchers.h"
#include "tests/support/SimulatedProgram.h"

#import "tests/macos/frameworks/Prefix.h"
#include "tests/macos/frameworks/World.h"

namespace brisel::tests::macos {

/// Fails a test that misused a framework or leaked an object.
class AdapterTest : public testing::Test {
  protected:
    AdapterTest();
    ~AdapterTest() override;

    ScriptedPerson person;
    platform::simulated::Mac mac{person};

    [[nodiscard]] const std::vector<std::string>& lines() const { return mac.transcript.lines(); }
    /// The transcript lines that begin with `log: `, without this prefix.
    [[nodiscard]] std::vector<std::string> logLines() const;
    /// Runs the main run loop in `mode` for `seconds`, or until `*done`.
    static void turn(NSString* mode, NSTimeInterval seconds, const bool* done = nullptr);

  private:
    NSAutoreleasePool* pool_;
};

}  // namespace brisel::tests::macos
