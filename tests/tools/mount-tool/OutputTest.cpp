// Sanitising a program's output for the log.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tools/mount-tool/Program.h"

namespace brisel::mounttool {

namespace {

TEST(Output, KeepsTextAndLineEndsAndNoControlCharacters) {
    EXPECT_EQ(withoutControlCharacters("Größe: 5 µm\n日本語\n"), "Größe: 5 µm\n日本語\n");
    EXPECT_EQ(withoutControlCharacters("a\x1B[2J\rb\x7F\tc"), "a?[2J?b??c");
    EXPECT_EQ(withoutControlCharacters("\xC2\x80\xC2\x9B"
                                       "2J\xC2\xA0\xC2"),
              "??2J\xC2\xA0\xC2");
}

}  // namespace

}  // namespace brisel::mounttool
