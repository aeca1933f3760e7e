// The login item on the stand-in frameworks: prints its calls.
// SPDX-License-Identifier: MIT
#import <Foundation/Foundation.h>

#include <cstdlib>
#include <iostream>

#include "tests/macos/frameworks/World.h"

/// main() of the login item.
int loginItemMain();

namespace {

/// The login item shows no alert and no prompt.
class Nobody final : public brisel::platform::simulated::Person {
  public:
    int answerAlert(const brisel::platform::AlertContent& /*alert*/) override { std::abort(); }
    brisel::platform::OSStatus answerPasswordPrompt(const std::string& /*right*/) override {
        std::abort();
    }
};

}  // namespace

int main() {
    Nobody nobody;
    brisel::platform::simulated::Mac mac(nobody);
    mac.transcript.setListener([](const std::string& line) { std::cout << line << '\n'; });
    brisel::tests::macos::setWorld(mac);
    return loginItemMain();
}
