#!/bin/sh
# Checks that the sources are formatted by .clang-format with clang-format 14.
# SPDX-License-Identifier: MIT
#
# usage: format.sh ROOT
cd "$1" || exit 2

if ! command -v clang-format >/dev/null; then
    echo "clang-format is missing, so nothing was checked" >&2
    exit 1
fi
# Other releases break lines differently. CI uses this one.
if ! clang-format --version | grep -q 'version 14\.'; then
    echo "Skipped: the format is clang-format 14's, and this is $(clang-format --version)."
    exit 77
fi
find src simulator tests benchmarks tools helper scripts \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' -o -name '*.m' -o -name '*.c' \) 2>/dev/null |
sort | xargs clang-format --dry-run -Werror
