#!/bin/sh
# Checks what the simulator says of a scenario file that is not there.
# SPDX-License-Identifier: MIT
#
# usage: check-missing-file.sh SIMULATOR
set -u

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

"$1" "$work/missing.scenario" > "$work/stdout" 2> "$work/stderr"
status=$?
cat "$work/stdout" "$work/stderr"

if [ "$status" -ne 2 ]; then
    echo "exit status $status, not 2"
    exit 1
fi
[ ! -s "$work/stdout" ] && grep -qF "cannot read $work/missing.scenario" "$work/stderr"
