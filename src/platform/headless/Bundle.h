// The resources built into the Linux programs.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/common/Bundle.h"

namespace brisel::platform::headless {

/// The texts that differ on Linux, because the shared ones name macOS or the Finder; defined in a
/// source generated from resources/linux/.
const std::vector<common::EmbeddedTable>& embeddedTables();

class Bundle final : public common::Bundle {
  public:
    Bundle() : common::Bundle(embeddedTables()) {}
};

}  // namespace brisel::platform::headless
