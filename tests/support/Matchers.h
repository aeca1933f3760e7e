// The test framework, with its common matchers in the tests' namespace.
// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brisel::tests {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Optional;
using testing::Pair;
using testing::Pointee;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

}  // namespace brisel::tests
