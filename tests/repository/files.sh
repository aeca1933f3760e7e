#!/bin/sh
# Checks that each source file says what it is, and is short.
# SPDX-License-Identifier: MIT
#
# usage: files.sh ROOT
cd "$1" || exit 2

find src simulator tests benchmarks tools helper \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' -o -name '*.m' -o -name '*.c' \) 2>/dev/null |
sort | xargs awk '
function complain(what) {
    print file ": " what
    broken = 1
}

function finish() {
    if (file == "") return
    if (lines > 350) complain("has " lines " lines, more than 350")
    if (file ~ /\.h$/ && !once) complain("lacks #pragma once")
}

FNR == 1 {
    finish()
    file = FILENAME
    once = 0
    if ($0 !~ /^\/\/ .*[a-z].*[.]$/) complain("does not begin with a sentence on what it is")
}
FNR == 2 && $0 != "// SPDX-License-Identifier: MIT" { complain("has no licence in its second line") }
/^#pragma once$/ { once = 1 }
{ lines = FNR }

END {
    finish()
    exit broken
}
'
