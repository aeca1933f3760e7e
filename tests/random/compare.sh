#!/bin/sh
# Checks that two programs print the same, to the byte, for random scenarios.
# SPDX-License-Identifier: MIT
#
# usage: compare.sh BRISEL-RANDOM PROGRAM PROGRAM SCENARIOS [STEPS [SEED]]
set -u

work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT

# transcript PROGRAM FILE: what it prints, its complaint and its exit status.
transcript() {
    "$1" "$work/scenario" >"$2" 2>"$work/complaint"
    echo "exit status $?" | cat "$work/complaint" - >>"$2"
}

seed=${6:-1}
end=$((seed + $4))
while [ "$seed" -lt "$end" ]; do
    "$1" print "$seed" "${5:-0}" >"$work/scenario" || exit 1
    transcript "$2" "$work/one"
    transcript "$3" "$work/other"
    if ! diff -u "$work/one" "$work/other" >"$work/difference"; then
        cat "$work/scenario" "$work/difference"
        echo "The transcripts differ for seed $seed."
        exit 1
    fi
    seed=$((seed + 1))
done
