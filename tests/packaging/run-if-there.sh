#!/bin/sh
# Runs a command whose needs, programs and files, are there; else it exits 77 and says what is missing.
# SPDX-License-Identifier: MIT
#
# usage: run-if-there.sh "NEED..." COMMAND...
for need in $1; do
    if ! command -v "$need" >/dev/null && ! [ -e "$need" ]; then
        echo "Skipped: $need is missing."
        exit 77
    fi
done
shift
exec "$@"
