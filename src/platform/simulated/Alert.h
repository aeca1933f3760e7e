// The alerts of the simulated Mac.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Alert.h"
#include "platform/simulated/Person.h"
#include "platform/simulated/Transcript.h"

namespace brisel::platform::simulated {

class Alert final : public platform::Alert {
  public:
    Alert(Transcript& transcript, Person& person) : transcript_(transcript), person_(person) {}
    int runModal(const AlertContent& content) override;

  private:
    Transcript& transcript_;
    Person& person_;
};

}  // namespace brisel::platform::simulated
