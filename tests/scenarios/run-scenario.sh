#!/bin/sh
# Runs the simulator on one scenario and compares all that it says, byte for byte.
# SPDX-License-Identifier: MIT
#
# usage: run-scenario.sh SIMULATOR SCENARIO [file|pipe]
#
# NAME.expected holds the transcript. A scenario that stops at a bad command has what is said about
# it in NAME.stderr, and exits 2; any other says nothing there, and exits 0.
set -u

simulator=$1
scenario=$2
input=${3:-file}
expected=${scenario%.scenario}.expected
complaint=${scenario%.scenario}.stderr

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

wantedStatus=0
: > "$work/wanted-stderr"
if [ -e "$complaint" ]; then
    wantedStatus=2
    cp "$complaint" "$work/wanted-stderr" || exit 1
fi

case $input in
    file) "$simulator" "$scenario" > "$work/stdout" 2> "$work/stderr" < /dev/null ;;
    # The status of a pipe is that of its last command.
    pipe) cat "$scenario" | "$simulator" > "$work/stdout" 2> "$work/stderr" ;;
    *) echo "unknown input: $input"; exit 1 ;;
esac
status=$?

failed=0
same() {
    cmp -s "$1" "$2" && return
    diff -u "$1" "$2"
    failed=1
}
same "$expected" "$work/stdout"
same "$work/wanted-stderr" "$work/stderr"
if [ "$status" -ne "$wantedStatus" ]; then
    echo "exit status $status, not $wantedStatus"
    failed=1
fi
exit $failed
