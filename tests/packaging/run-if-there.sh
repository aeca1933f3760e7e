#!/bin/sh
# Runs a command if its needs, programs or files, exist; else prints the missing one and exits 77.
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
