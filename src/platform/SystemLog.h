// The system log.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/Format.h"

namespace brisel::platform {

/// Safe from any thread.
class SystemLog {
  public:
    virtual ~SystemLog() = default;

    /// Writes one entry; `text` may contain line breaks and invalid UTF-8.
    virtual void write(const std::string& text) = 0;

    template <typename... Values>
    void log(std::string_view format, const Values&... values) {
        write(stringWithFormat(format, values...));
    }
};

}  // namespace brisel::platform
