#!/bin/sh
# Checks that each of the wrong sources is refused, for the fault that it has and no other.
# SPDX-License-Identifier: MIT
#
# usage: wrong.sh ROOT x86_64|arm64
#
# What the compiler must say stands behind "says:" in a source; where it must say so for one
# processor alone, that stands behind "only:", and for the other it must say nothing.
root=$1
processor=$2
wrong=tests/macos/declarations/wrong
failures=0

output=$(mktemp) || exit 1
trap 'rm -f "$output"' EXIT

word() {
    sed -n "s|^// $1: ||p" "$root/$source"
}

errors() {
    grep "^$source:.* error: " "$output"
}

complain() {
    echo "$source: $1"
    errors
    failures=1
}

sources=$(cd "$root" && ls $wrong/*)
sh "$root/tests/macos/declarations/check.sh" "$root" "$processor" $sources >"$output" 2>&1
for source in $sources; do
    only=$(word only)
    if [ "${only:-$processor}" != "$processor" ]; then
        [ -z "$(errors)" ] || complain "is not accepted for $processor"
    elif [ -z "$(errors)" ]; then
        complain "is accepted for $processor"
    elif ! errors | grep -qF -- "$(word says)"; then
        complain "is refused for $processor, but not for its fault"
    elif [ "$(errors | cut -d: -f1,2 | sort -u | wc -l)" -ne 1 ]; then
        complain "is refused for $processor for more than its fault"
    fi
done
exit $failures
