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

word() {
    sed -n "s|^// $1: ||p" "$root/$wrong/$source"
}

faulty_lines() {
    printf '%s\n' "$output" | grep ' error: ' | cut -d: -f1,2 | sort -u
}

complain() {
    echo "$source: $1"
    printf '%s\n' "$output"
    failures=1
}

for path in "$root/$wrong"/*; do
    source=${path##*/}
    output=$(sh "$root/tests/macos/declarations/check.sh" "$root" "$processor" "$wrong/$source" 2>&1)
    status=$?
    only=$(word only)
    if [ "${only:-$processor}" != "$processor" ]; then
        [ -z "$output" ] || complain "is not accepted for $processor"
    elif [ $status -eq 0 ]; then
        complain "is accepted for $processor"
    elif ! printf '%s\n' "$output" | grep ' error: ' | grep -qF -- "$(word says)"; then
        complain "is refused for $processor, but not for its fault"
    elif [ "$(faulty_lines | wc -l)" -ne 1 ]; then
        complain "is refused for $processor for more than its fault"
    fi
done
exit $failures
