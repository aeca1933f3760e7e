#!/bin/sh
# Starts and stops an Xvfb server: display.sh open|close FILE
# SPDX-License-Identifier: MIT
#
# FILE holds the display number and the server's process ID.
set -eu
file=$2

close_display() {
    [ -e "$file" ] || return 0
    read -r number server <"$file"
    kill "$server" 2>/dev/null || true
    rm -f "$file"
}

case $1 in
open)
    close_display
    rm -f "$file.ready"
    mkfifo "$file.ready"
    Xvfb -displayfd 3 -screen 0 640x480x24 -nolisten tcp -noreset 3>"$file.ready" >/dev/null 2>&1 </dev/null &
    server=$!
    read -r number <"$file.ready" || true
    rm "$file.ready"
    if [ -z "$number" ]; then
        echo "There is no Xvfb to run on." >&2
        exit 1
    fi
    echo "$number $server" >"$file"
    ;;
close) close_display ;;
*) exit 2 ;;
esac
