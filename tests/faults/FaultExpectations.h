// What must be logged or shown after a call of each kind has failed.
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Bundle.h"

namespace brisel::tests {

/// When the lines come.
enum class Comes {
    /// Right behind the call, one after the other.
    AtOnce,
    /// With the completion of the request, in this order, other lines between them.
    WithCompletion
};

/// One line: an event and its text, which is looked up in the user's language. A placeholder
/// `%@` in it stands for any text.
struct ExpectedLine {
    std::string_view event;
    std::string_view text;
};

struct FaultExpectation {
    /// The name under which the call was struck.
    std::string_view call;
    Comes comes;
    std::vector<ExpectedLine> lines;
};

/// The expectation for a call of this name, or null for a name that is not known.
const FaultExpectation* expectationFor(std::string_view call);

/// Whether the lines that came after the failed call are as expected.
bool isMet(const FaultExpectation& expectation, std::span<const std::string> linesAfter,
           const platform::Bundle& bundle);

}  // namespace brisel::tests
