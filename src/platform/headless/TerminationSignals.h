// The signals by which a program is asked to end, as a descriptor to wait for.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::platform::headless {

/// One per process, as signal handlers are. From its making on SIGINT, SIGTERM and SIGHUP end
/// nothing by themselves.
class TerminationSignals {
  public:
    TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    /// The signals have their usual effect again.
    ~TerminationSignals();

    /// Readable, for good, once one of the signals has come.
    [[nodiscard]] int descriptor() const { return readEnd_; }

  private:
    int readEnd_ = -1;
};

}  // namespace brisel::platform::headless
