#!/bin/sh
# Runs a program on every scenario and compares all that it says, byte for byte.
# SPDX-License-Identifier: MIT
#
# usage: run-scenarios.sh PROGRAM [PART PARTS]
#
# NAME.expected holds the transcript of NAME.scenario. A scenario that stops at a bad command has
# the complaint in NAME.stderr, and exits 2; any other says nothing there, and exits 0.
# With PART, from 1 to PARTS, runs that part of the scenarios.
set -u

program=$1
part=${2:-1}
parts=${3:-1}
scenarios=$(dirname "$0")
failures=0
# A Mac lacks `timeout`; ctest limits the whole run.
limit=
command -v timeout >/dev/null && limit='timeout 60'

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

same() {
    cmp -s "$1" "$2" || {
        diff -u "$1" "$2"
        return 1
    }
}

# compare NAME STATUS: what the program said of the scenario, and its exit status.
compare() {
    complaint=$scenarios/$1.stderr
    wanted=2
    [ -e "$complaint" ] || { complaint=/dev/null && wanted=0; }
    failed=
    same "$scenarios/$1.expected" "$work/stdout" || failed=yes
    same "$complaint" "$work/stderr" || failed=yes
    [ "$2" -eq $wanted ] || { failed=yes && echo "exit status $2, not $wanted"; }
    [ -z "$failed" ] || { failures=$((failures + 1)) && echo "FAILED: $1"; }
}

number=0
for scenario in "$scenarios"/*.scenario; do
    number=$((number + 1))
    [ $((number % parts + 1)) -eq "$part" ] || continue
    $limit "$program" "$scenario" >"$work/stdout" 2>"$work/stderr" </dev/null
    compare "$(basename "$scenario" .scenario)" $?
done
echo "$number scenarios, of which this is part $part of $parts"
[ $number -gt 0 ] || failures=1

if [ "$part" -eq 1 ]; then
    # Commands from a pipe do what commands from a file do.
    for name in remount-with-tool words-and-quotes quit-in-the-middle bad-commands-stop-the-run; do
        # The status of a pipe is that of its last command.
        cat "$scenarios/$name.scenario" | $limit "$program" >"$work/stdout" 2>"$work/stderr"
        compare "$name" $?
    done
    $limit "$program" "$work/missing" >"$work/stdout" 2>"$work/stderr"
    if [ $? -ne 2 ] || [ -s "$work/stdout" ] || ! grep -qF "cannot read $work/missing" "$work/stderr"; then
        failures=$((failures + 1))
        echo "FAILED: a file that is not there"
    fi
fi
[ $failures -eq 0 ]
