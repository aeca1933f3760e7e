// Discards a result on purpose.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::shared {

/// For calls that cannot be handled if they fail. Unlike a cast to void, it also silences
/// warn_unused_result.
template <typename Result>
constexpr void ignoreResult(const Result& /*result*/) {}

}  // namespace brisel::shared
