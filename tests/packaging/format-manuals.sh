#!/bin/sh
# Formats manual pages with man, and fails on a warning.
# SPDX-License-Identifier: MIT
#
# usage: format-manuals.sh PAGE...
status=0
for page in "$@"; do
    complaints=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null) ||
        status=1
    [ -z "$complaints" ] && continue
    echo "$page: $complaints"
    status=1
done
exit $status
