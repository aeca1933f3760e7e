// Catches SIGINT, SIGTERM and SIGHUP, with a descriptor to poll.
// SPDX-License-Identifier: MIT
#pragma once

#include "shared/Descriptor.h"

namespace brisel::platform::headless {

/// At most one per process. While it exists, these signals do not end the process.
class TerminationSignals {
  public:
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    /// Restores the default actions.
    ~TerminationSignals();

    /// Becomes readable, and stays so, after one of the signals.
    [[nodiscard]] int descriptor() const { return readEnd_.number(); }

  private:
    shared::Descriptor readEnd_;
    shared::Descriptor writeEnd_;
};

}  // namespace brisel::platform::headless
