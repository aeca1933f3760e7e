#!/bin/sh
# Checks that each source file and script has a headline and a licence, and is short.
# SPDX-License-Identifier: MIT
#
# usage: files.sh ROOT
cd "$1" || exit 2
status=0

# files TEST...: the source files that pass one of find's tests.
files() {
    find src simulator tests benchmarks tools helper scripts .ci \
        -type f \( "$@" \) ! -path '*/__pycache__/*' 2>/dev/null | sort
}

sources() {
    files -name '*.h' -o -name '*.cpp' -o -name '*.mm' -o -name '*.m' -o -name '*.c'
    files -name '*.py' -o -name '*.sh' -o -perm -u+x
}

files -perm -u+x | xargs awk '
FNR == 1 && !/^#!\// {
    print FILENAME ": is to be executed, but does not say by what"
    broken = 1
}
END { exit broken }
' || status=1

sources | xargs awk '
function complain(what) {
    print file ": " what
    broken = 1
}

function finish() {
    if (file == "") return
    if (!licensed) complain("has no licence below its first sentence")
    if (lines > 260) complain("has " lines " lines, more than 260")
    if (file ~ /\.h$/ && !once) complain("lacks #pragma once")
}

# The sentence of a script may end with its usage.
function isSentence(line) {
    if (mark == "//") return line ~ /^\/\/ .*[a-z].*[.]$/
    return line ~ /^# .*[a-z].*[.]$/ || (line ~ /^# .*[a-z]/ && index(line, ": " name " "))
}

FNR == 1 {
    finish()
    file = FILENAME
    name = file
    sub(/.*\//, "", name)
    mark = file ~ /\.(h|cpp|mm|m|c)$/ ? "//" : "#"
    once = 0
    licensed = 0
    first = /^#!/ ? 2 : 1
}
FNR == first && !isSentence($0) { complain("does not begin with a sentence on what it is") }
FNR == first + 1 && $0 == mark " SPDX-License-Identifier: MIT" { licensed = 1 }
/^#pragma once$/ { once = 1 }
{ lines = FNR }

END {
    finish()
    exit broken
}
' || status=1

exit $status
