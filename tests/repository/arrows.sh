#!/bin/sh
# Checks that includes run one way, entry to app to mounting to volumes to platform.
# SPDX-License-Identifier: MIT
#
# usage: arrows.sh ROOT
cd "$1" || exit 2

find src simulator tests benchmarks tools helper \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.mm' -o -name '*.m' -o -name '*.c' \) 2>/dev/null |
sort | xargs awk '
# The component of a path; each platform is one.
function partOf(path, words, count) {
    sub(/^src\//, "", path)
    count = split(path, words, "/")
    if (words[1] == "platform" && count > 2) return "platform/" words[2]
    return count > 1 ? words[1] : "system"
}

BEGIN {
    count = split("app mounting volumes privileged platform entry simulator tests benchmarks " \
                  "tools helper shared", names, " ")
    for (i = 1; i <= count; i++) isPart[names[i]] = 1
    may["app"] = "app mounting privileged volumes platform"
    may["mounting"] = "mounting privileged volumes platform"
    may["volumes"] = "volumes platform"
    may["privileged"] = "privileged platform"
    may["platform"] = "platform"
    may["tools"] = may["helper"] = "platform"
    # Components that may include platforms; `src` stands for any component of src/.
    may["entry"] = may["simulator"] = "src"
    may["benchmarks"] = "src simulator tests"
    may["tests"] = "src simulator benchmarks tools helper"
}

function complain(what) {
    print FILENAME ":" FNR ": " what
    broken = 1
}

function allowed(from, to, words, count, i) {
    # Headers that several components or programs use; they include none.
    if (to == "shared") return 1
    if (from ~ /^platform\/(desktop|terminal)$/ && to == "platform/headless") return 1
    if (from ~ /^platform\//) return to == "platform" || to == "platform/common" || to == from
    count = split(may[from], words, " ")
    for (i = 1; i <= count; i++) {
        if (words[i] == to) return 1
        if (words[i] == "src" && to !~ /^(simulator|tests|benchmarks|tools|helper)$/) return 1
    }
    return 0
}

/^[ \t]*#[ \t]*(include|import)[ \t]*"/ {
    split($0, quoted, "\"")
    from = partOf(FILENAME)
    to = partOf(quoted[2])
    inHouse = (to in isPart) || to ~ /^platform\//
    if (!inHouse && FILENAME ~ /^src\//) complain("includes \"" quoted[2] "\", which is no path from src/")
    if (inHouse && from != to && !allowed(from, to)) complain(from " includes " to)
}

# Macros such as __APPLE__.
/^[ \t]*#[ \t]*(if|ifdef|ifndef|elif|elifdef)/ &&
        /__linux|__APPLE|__MACH__|__unix|_WIN32|_WIN64|__FreeBSD__|__ANDROID__|TARGET_OS_|GNUSTEP/ {
    if (FILENAME !~ /^src\/(platform\/[^\/]+|entry)\//) complain("tests for an operating system")
}

END { exit broken }
'
